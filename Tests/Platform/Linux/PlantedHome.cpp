#include "Tests/Platform/Linux/PlantedHome.h"

using namespace Qt::StringLiterals;

namespace vantrel::test {

PlantedHome::PlantedHome()
{
    variables_.insert(u"HOME"_s, path());
    variables_.insert(u"XDG_DATA_DIRS"_s, path(u"share"_s) + u':' + path(u"other/share"_s));
}

QString PlantedHome::installEntry(const QString &name, const QByteArray &keys, const QString &folder) const
{
    const QString exec = installProgram() + " %U"_L1;
    return write(folder + u'/' + name, desktopEntry(exec, keys));
}

QString PlantedHome::installProgram(const QString &name) const
{
    return writeScript(name, "exit 0\n");
}

QByteArray desktopEntry(const QString &exec, const QByteArray &keys)
{
    return "[Desktop Entry]\nType=Application\nName=Stand-in\nExec=" + exec.toUtf8() + '\n' + keys + '\n';
}

} // namespace vantrel::test
