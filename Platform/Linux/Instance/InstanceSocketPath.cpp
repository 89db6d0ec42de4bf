#include "Platform/Linux/Instance/InstanceSocketPath.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool isOwnFolder(const QString &path)
{
    struct stat status{};
    return path.startsWith(u'/') && stat(QFile::encodeName(path).constData(), &status) == 0 &&
           S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

} // namespace

QString instanceSocketPath(const QProcessEnvironment &variables)
{
    const QString runtimeFolder = variables.value(u"XDG_RUNTIME_DIR"_s);
    if (isOwnFolder(runtimeFolder))
        return runtimeFolder + u"/app.kestrune.Vantrel/socket"_s;
    const QString named = variables.value(u"TMPDIR"_s);
    const QString temporaryFolder = named.startsWith(u'/') ? named : u"/tmp"_s;
    return temporaryFolder + u"/app.kestrune.Vantrel-%1/socket"_s.arg(geteuid());
}

} // namespace vantrel
