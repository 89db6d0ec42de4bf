#include "VantrelKit/LauncherBundle.h"

#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/PropertyList.h"

#include <QProcess>
#include <QSet>
#include <QTextBoundaryFinder>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString profileID = u"com.google.Chrome/chromium:Profile 1"_s;
const LaunchLink profileLink{test::chrome, u"R&D + <Ops>"_s, profileID, {}};
const QString title = u"Google Chrome – R&D + <Ops>"_s;

QVariantMap list()
{
    return LauncherBundle::infoPlist(title, profileID, profileLink, u"1.2.3"_s);
}

TEST(LauncherBundle, TheIdentifierIsTheBeginningOfTheIdsHash)
{
    // Digits from `printf %s ID | sha256sum | cut -c 1-12`.
    EXPECT_EQ(LauncherBundle::digits(u""_s), u"e3b0c44298fc"_s);
    EXPECT_EQ(LauncherBundle::digits(profileID), u"454510cc5870"_s);
    EXPECT_EQ(LauncherBundle::digits(u"com.apple.Safari/safari:Büro"_s), u"be752477e45a"_s);
    EXPECT_EQ(LauncherBundle::bundleIdentifier(profileID), u"app.kestrune.Vantrel.Launcher.p454510cc5870"_s);
}

TEST(LauncherBundle, IdentifiersOfDifferentProfilesDifferAndAllHaveFortyThreeCharacters)
{
    QSet<QString> identifiers;
    QStringList ids = test::oddTexts() + QStringList{u""_s, profileID, profileID.toLower(), profileID + u' '};
    ids.removeDuplicates();
    for (const QString &each : std::as_const(ids)) {
        const QString identifier = LauncherBundle::bundleIdentifier(each);
        EXPECT_EQ(identifier.size(), 43);
        EXPECT_EQ(identifier, LauncherBundle::bundleIdentifier(each));
        identifiers.insert(identifier);
    }
    EXPECT_EQ(identifiers.size(), ids.size());
}

TEST(LauncherBundle, AFileNameHasNoSeparatorsAndNothingThatHidesIt)
{
    const QList<std::pair<QString, QString>> rows{
        {u"Google Chrome – Work"_s, u"Google Chrome – Work.app"_s},
        {u"Work/Home: Chrome"_s, u"Work-Home- Chrome.app"_s},
        {u"..hidden"_s, u"hidden.app"_s},
        {u"   "_s, u"Profile.app"_s},
        {u""_s, u"Profile.app"_s},
        {u"..."_s, u"Profile.app"_s},
        {u" \n\t.a b. \r\n"_s, u"a b..app"_s},
        {u".. x"_s, u" x.app"_s},
        {u"/"_s, u"-.app"_s},
        {u"::/"_s, u"---.app"_s},
        {u"a\nb"_s, u"a\nb.app"_s},
        {u"\u00a0a\u2003"_s, u"a.app"_s},
        {u"a\0b"_s, u"a-b.app"_s},
        {u"\"$(id)\" `x` \\ 'y'"_s, u"\"$(id)\" `x` \\ 'y'.app"_s},
        {u"עבודה 👩‍💻"_s, u"עבודה 👩‍💻.app"_s},
        {u"Chrome.app"_s, u"Chrome.app.app"_s},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(LauncherBundle::fileName(text), expected);
}

TEST(LauncherBundle, ALongTitleIsCutBetweenCharacters)
{
    EXPECT_EQ(LauncherBundle::fileName(QString(251, u'a')), QString(251, u'a') + u".app"_s);
    EXPECT_EQ(LauncherBundle::fileName(QString(300, u'a')), QString(251, u'a') + u".app"_s);
    const QString woman = u"👩‍💻"_s;
    ASSERT_EQ(woman.toUtf8().size(), 11);
    EXPECT_EQ(LauncherBundle::fileName(u"a"_s + woman.repeated(300)), u"a"_s + woman.repeated(22) + u".app"_s);
    EXPECT_EQ(LauncherBundle::fileName(u"é"_s.repeated(300)).toUtf8().size(), 254);
}

TEST(LauncherBundle, APropertyListHasSixteenEntries)
{
    const QVariantMap expected{
        {u"CFBundleDevelopmentRegion"_s, u"en"_s},
        {u"CFBundleExecutable"_s, u"Launcher"_s},
        {u"CFBundleIconFile"_s, u"AppIcon"_s},
        {u"CFBundleIdentifier"_s, u"app.kestrune.Vantrel.Launcher.p454510cc5870"_s},
        {u"CFBundleInfoDictionaryVersion"_s, u"6.0"_s},
        {u"CFBundleName"_s, title},
        {u"CFBundleDisplayName"_s, title},
        {u"CFBundlePackageType"_s, u"APPL"_s},
        {u"CFBundleShortVersionString"_s, u"1.2.3"_s},
        {u"CFBundleVersion"_s, u"1.2.3"_s},
        {u"LSMinimumSystemVersion"_s, u"26.0"_s},
        {u"LSUIElement"_s, true},
        {u"NSPrincipalClass"_s, u"NSApplication"_s},
        {u"VantrelLink"_s, u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=R%26D%20%2B%20%3COps%3E"
                           "&profile=com.google.Chrome/chromium:Profile%201"_s},
        {u"CFBundleURLTypes"_s,
         QVariantList{QVariantMap{{u"CFBundleURLName"_s, u"Web links"_s},
                                  {u"CFBundleTypeRole"_s, u"Viewer"_s},
                                  {u"CFBundleURLSchemes"_s, QStringList{u"http"_s, u"https"_s}}}}},
        {u"CFBundleDocumentTypes"_s,
         QVariantList{QVariantMap{{u"CFBundleTypeName"_s, u"Web page"_s},
                                  {u"CFBundleTypeRole"_s, u"Viewer"_s},
                                  {u"LSHandlerRank"_s, u"Alternate"_s},
                                  {u"LSItemContentTypes"_s, QStringList{u"public.html"_s, u"public.xhtml"_s,
                                                                        u"com.apple.web-internet-location"_s}}}}},
    };
    EXPECT_EQ(list().size(), 16);
    EXPECT_EQ(list(), expected);
}

TEST(LauncherBundle, TheLinkOfAPropertyListIsReadBackAsItWas)
{
    for (const QString &name : test::oddTexts()) {
        const LaunchLink odd{test::chrome, name, profileID, {QUrl(u"https://example.com/?a=b&c=%20#d"_s)}};
        const QVariantMap written = LauncherBundle::infoPlist(name, profileID, odd, u"1"_s);
        EXPECT_EQ(LaunchLink::parse(written.value(QString(LauncherBundle::linkKey)).toString()), odd);
    }
}

/// What a program prints; it must succeed.
QByteArray answerOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished())
        << program.toStdString() << " is missing; its package is libplist-utils or python3.";
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

/// What Python's reader finds in a property list of either form.
QJsonObject readByPython(const QString &file)
{
    const QString script = u"import json, plistlib, sys; print(json.dumps(plistlib.load(open(sys.argv[1], 'rb'))))"_s;
    return QJsonDocument::fromJson(answerOf(u"/usr/bin/python3"_s, {u"-c"_s, script, file})).object();
}

TEST(LauncherBundle, OtherReadersFindTheSameInTheFile)
{
    const test::TemporaryFolder folder;
    const QString file = folder.write(u"Info.plist"_s, propertyListXML(list()));
    EXPECT_EQ(readByPython(file), QJsonObject::fromVariantMap(list()));
    const QString binary = folder.path(u"binary.plist"_s);
    std::ignore = answerOf(u"plistutil"_s, {u"-i"_s, file, u"-o"_s, binary, u"-f"_s, u"bin"_s});
    EXPECT_EQ(folder.read(u"binary.plist"_s).first(6), "bplist");
    EXPECT_EQ(readByPython(binary), QJsonObject::fromVariantMap(list()));
}

} // namespace
} // namespace vantrel
