#include "Platform/Linux/StatusItem/ThemeIcon.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool hasIcon(const QString &sizeFolder, const QString &name)
{
    for (const auto context : {"/apps/"_L1, "/status/"_L1}) {
        for (const auto ending : {".svg"_L1, ".png"_L1}) {
            if (QFile::exists(sizeFolder + context + name + ending))
                return true;
        }
    }
    return false;
}

} // namespace

bool isThemeIcon(const QString &name, const Environment &environment)
{
    if (name.isEmpty())
        return false;
    for (const QString &folder : QStringList(environment.dataHome) + environment.dataDirs) {
        const QDir theme(folder + "/icons/hicolor"_L1);
        for (const QString &size : theme.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (hasIcon(theme.filePath(size), name))
                return true;
        }
    }
    return false;
}

} // namespace vantrel
