#include "Platform/Linux/Processes/FirefoxBusName.h"

#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(FirefoxBusNameTest, ANameIsThatOfItsPath)
{
    struct Case {
        QString name;
        QString path;
        bool isName;
    };
    const QList<Case> cases{
        {u"org.mozilla.firefox.L2EvYg__"_s, u"/a/b"_s, true},
        {u"org.mozilla.firefox_beta.L2EvYg__"_s, u"/a/b"_s, true},
        {u"app.zen_browser.zen.L2EvYg__"_s, u"/a/b"_s, true},
        {u"org.mozilla.firefox.L2EvYmM_"_s, u"/a/bc"_s, true},
        {u"org.mozilla.firefox.L2EvYmNk"_s, u"/a/bcd"_s, true},
        {u"org.mozilla.firefox.L8O8Yg__"_s, u"/\u00fcb"_s, true},
        {u"org.mozilla.firefox.L2EvYg__"_s, u"/a/b/"_s, false},
        {u"org.mozilla.firefox.L2EvYg"_s, u"/a/b"_s, false},
        {u"org.mozilla.firefox"_s, u"/a/b"_s, false},
        {u"org.mozilla.firefox."_s, u"/a/b"_s, false},
        {QString(), u"/a/b"_s, false},
    };
    for (const auto &[name, path, isName] : cases)
        EXPECT_EQ(isBusNameOfPath(name, path), isName) << name.toStdString() << ' ' << path.toStdString();
}

TEST(FirefoxBusNameTest, EveryCharacterThatANameCannotHoldIsAnUnderscore)
{
    // In Base64 "Pz8/" and "Pj4+".
    EXPECT_TRUE(isBusNameOfPath(u"org.mozilla.firefox.Pz8_"_s, u"???"_s));
    EXPECT_TRUE(isBusNameOfPath(u"org.mozilla.firefox.Pj4_"_s, u">>>"_s));
}

TEST(FirefoxBusNameTest, ALongNameIsCutOff)
{
    const QString path = u'/' + QString(300, u'a');
    const QString whole = u"org.mozilla.firefox."_s + QString::fromLatin1(path.toUtf8().toBase64().replace('=', '_'));
    EXPECT_TRUE(isBusNameOfPath(whole.first(255), path));
    EXPECT_FALSE(isBusNameOfPath(whole.first(254), path));
    EXPECT_FALSE(isBusNameOfPath(whole.first(255), u"/b"_s + path.sliced(2)));
    EXPECT_FALSE(isBusNameOfPath(QString(254, u'a') + u'.', path));
}

TEST(FirefoxBusNameTest, OnlyNamesBelowThoseOfTheBrowsersAreTheirs)
{
    for (const QString &name : {u"org.mozilla.firefox.x"_s, u"org.mozilla.x"_s, u"app.zen_browser.zen.x"_s})
        EXPECT_TRUE(isFirefoxBusName(name)) << name.toStdString();
    for (const QString &name : {u"org.mozilla"_s, u"org.mozillas.x"_s, u"com.org.mozilla.x"_s, u":1.5"_s, QString()})
        EXPECT_FALSE(isFirefoxBusName(name)) << name.toStdString();
}

TEST(FirefoxBusNameTest, AFlatpakKnowsItsFolderAsItsHome)
{
    const QString sandboxed = u"/home/u/.var/app/org.mozilla.firefox/.mozilla/firefox/a"_s;
    EXPECT_EQ(pathsOfProfile(sandboxed), (QStringList{sandboxed, u"/home/u/.mozilla/firefox/a"_s}));
    for (const QString &path : {u"/home/u/.mozilla/firefox/a"_s, u"/home/u/.var/app/org.mozilla.firefox"_s})
        EXPECT_EQ(pathsOfProfile(path), QStringList(path));
}

} // namespace
} // namespace vantrel
