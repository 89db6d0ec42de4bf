#include "Platform/CodesignProgram.h"

#include "Platform/FinishedProcess.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vantrel {

QCoro::Task<std::expected<void, PlatformError>> CodesignProgram::sign(QString bundle)
{
    return runToEnd(program_, {u"--force"_s, u"--sign"_s, u"-"_s, bundle});
}

} // namespace vantrel
