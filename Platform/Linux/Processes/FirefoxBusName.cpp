#include "Platform/Linux/Processes/FirefoxBusName.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Longer names are cut off, for the bus takes none.
constexpr qsizetype longestBusName = 255;

QString encoded(const QString &path)
{
    QByteArray text = QFile::encodeName(path).toBase64();
    for (const char character : {'+', '/', '='})
        text.replace(character, '_');
    return QString::fromLatin1(text);
}

} // namespace

const QStringList &firefoxBusNamespaces()
{
    static const QStringList namespaces{u"org.mozilla"_s, u"app.zen_browser"_s};
    return namespaces;
}

bool isFirefoxBusName(const QString &name)
{
    return std::ranges::any_of(firefoxBusNamespaces(),
                               [&name](const QString &start) { return name.startsWith(start + u'.'); });
}

bool isBusNameOfPath(const QString &name, const QString &path)
{
    const QString element = name.section(u'.', -1);
    if (name.size() >= longestBusName)
        return !element.isEmpty() && encoded(path).startsWith(element);
    return element == encoded(path);
}

QStringList pathsOfProfile(const QString &profileFolder)
{
    static constexpr auto flatpakData = "/.var/app/"_L1;
    QStringList paths(profileFolder);
    if (const qsizetype start = profileFolder.indexOf(flatpakData); start >= 0) {
        const qsizetype end = profileFolder.indexOf(u'/', start + flatpakData.size());
        if (end >= 0)
            paths.append(profileFolder.first(start) + profileFolder.sliced(end));
    }
    return paths;
}

} // namespace vantrel
