#include "VantrelKit/LauncherBundle.h"

#include "VantrelKit/LaunchLink.h"

#include <QCryptographicHash>
#include <QStringList>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr auto identifierStart = "app.kestrune.Vantrel.Launcher.p"_L1;
constexpr auto fileEnding = ".app"_L1;

/// What APFS, HFS+ (in UTF-16) and the file systems of Linux (in UTF-8) all take for one name.
constexpr qsizetype longestFileName = 255;

/// As many whole characters from the text's beginning as fit into that many bytes of UTF-8.
QString cut(const QString &text, qsizetype bytes)
{
    if (text.toUtf8().size() <= bytes)
        return text;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype next = 0; next >= 0 && QStringView(text).first(next).toUtf8().size() <= bytes;
         next = characters.toNextBoundary())
        end = next;
    return text.first(end);
}

QVariantMap webLinks()
{
    return {{u"CFBundleURLName"_s, u"Web links"_s},
            {u"CFBundleTypeRole"_s, u"Viewer"_s},
            {u"CFBundleURLSchemes"_s, QStringList{u"http"_s, u"https"_s}}};
}

QVariantMap webPages()
{
    return {{u"CFBundleTypeName"_s, u"Web page"_s},
            {u"CFBundleTypeRole"_s, u"Viewer"_s},
            {u"LSHandlerRank"_s, u"Alternate"_s},
            {u"LSItemContentTypes"_s,
             QStringList{u"public.html"_s, u"public.xhtml"_s, u"com.apple.web-internet-location"_s}}};
}

} // namespace

QString LauncherBundle::digits(const QString &profileID)
{
    constexpr qsizetype bytes = 6;
    const QByteArray digest = QCryptographicHash::hash(profileID.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.first(bytes).toHex());
}

QString LauncherBundle::bundleIdentifier(const QString &profileID)
{
    return identifierStart + digits(profileID);
}

QString LauncherBundle::fileName(const QString &title)
{
    QString name = title;
    // The zero character, which no file system takes either, besides the separators of both kinds of paths.
    for (const QChar separator : {u'/', u':', u'\0'})
        name.replace(separator, u'-');
    name = name.trimmed();
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    if (name.isEmpty())
        name = u"Profile"_s;
    return cut(name, longestFileName - fileEnding.size()) + fileEnding;
}

QVariantMap LauncherBundle::infoPlist(const QString &title, const QString &profileID, const LaunchLink &link,
                                      const QString &version)
{
    return {
        {u"CFBundleDevelopmentRegion"_s, u"en"_s},
        {u"CFBundleExecutable"_s, QString(executableName)},
        {u"CFBundleIconFile"_s, QString(iconName)},
        {u"CFBundleIdentifier"_s, bundleIdentifier(profileID)},
        {u"CFBundleInfoDictionaryVersion"_s, u"6.0"_s},
        {u"CFBundleName"_s, title},
        {u"CFBundleDisplayName"_s, title},
        {u"CFBundlePackageType"_s, u"APPL"_s},
        {u"CFBundleShortVersionString"_s, version},
        {u"CFBundleVersion"_s, version},
        {u"LSMinimumSystemVersion"_s, u"26.0"_s},
        {u"LSUIElement"_s, true},
        {u"NSPrincipalClass"_s, u"NSApplication"_s},
        {QString(linkKey), link.text()},
        {u"CFBundleURLTypes"_s, QVariantList{webLinks()}},
        {u"CFBundleDocumentTypes"_s, QVariantList{webPages()}},
    };
}

} // namespace vantrel
