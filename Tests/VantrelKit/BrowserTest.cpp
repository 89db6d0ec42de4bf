#include "VantrelKit/Browser.h"

#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TranslatedProgram.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

Browser browser(const QString &name, BrowserFamily family = BrowserFamily::chromium,
                const QString &bundleID = test::chrome)
{
    return {bundleID, name, QUrl(u"file:///Applications/"_s + name), family};
}

QList<Browser> named(const QStringList &names)
{
    QList<Browser> browsers;
    for (const QString &name : names)
        browsers.append(browser(name));
    return browsers;
}

QStringList namesOf(const QList<Browser> &browsers)
{
    QStringList names;
    for (const Browser &browser : browsers)
        names.append(browser.name);
    return names;
}

QStringList sortedNames(const QStringList &names)
{
    return namesOf(sortedForDisplay(named(names)));
}

/// The sorting is asked for in a language; the former one comes back at the end of each test.
class SortedForDisplay : public testing::TestWithParam<QLocale> {
protected:
    void SetUp() override { QLocale::setDefault(GetParam()); }
    void TearDown() override { QLocale::setDefault(former_); }

private:
    QLocale former_;
};

INSTANTIATE_TEST_SUITE_P(Languages, SortedForDisplay,
                         testing::Values(QLocale::c(), QLocale(QLocale::English, QLocale::UnitedStates),
                                         QLocale(QLocale::German), QLocale(QLocale::Japanese),
                                         QLocale(QLocale::Turkish)),
                         [](const auto &parameter) { return parameter.param.name().toStdString(); });

TEST_P(SortedForDisplay, CaseMakesNoDifference)
{
    EXPECT_EQ(sortedNames({u"Gamma"_s, u"Beta"_s, u"alpha"_s}), QStringList({u"alpha"_s, u"Beta"_s, u"Gamma"_s}));
    EXPECT_EQ(sortedNames({u"gamma"_s, u"beta"_s, u"Alpha"_s}), QStringList({u"Alpha"_s, u"beta"_s, u"gamma"_s}));
}

TEST_P(SortedForDisplay, NumbersGoByTheirValue)
{
    EXPECT_EQ(sortedNames({u"Browser 10"_s, u"Browser 9"_s, u"Browser 100"_s, u"Browser 1"_s}),
              QStringList({u"Browser 1"_s, u"Browser 9"_s, u"Browser 10"_s, u"Browser 100"_s}));
}

TEST_P(SortedForDisplay, SafariComesFirstWhateverItsName)
{
    const QList<Browser> browsers{
        browser(u"alpha"_s, BrowserFamily::firefox), browser(u"Zulu Preview"_s, BrowserFamily::safari),
        browser(u"Beta"_s, BrowserFamily::chromium), browser(u"Safari"_s, BrowserFamily::safari),
        browser(u""_s, BrowserFamily::chromium),
    };
    EXPECT_EQ(namesOf(sortedForDisplay(browsers)),
              QStringList({u"Safari"_s, u"Zulu Preview"_s, u""_s, u"alpha"_s, u"Beta"_s}));
}

TEST_P(SortedForDisplay, TheOtherFamiliesAreNotToldApart)
{
    const QList<Browser> browsers{browser(u"C"_s, BrowserFamily::chromium), browser(u"B"_s, BrowserFamily::firefox),
                                  browser(u"A"_s, BrowserFamily::chromium), browser(u"D"_s, BrowserFamily::firefox)};
    EXPECT_EQ(namesOf(sortedForDisplay(browsers)), QStringList({u"A"_s, u"B"_s, u"C"_s, u"D"_s}));
}

TEST_P(SortedForDisplay, EqualNamesKeepTheirOrder)
{
    QList<Browser> browsers;
    QStringList identifiers;
    for (int number = 0; number < 200; ++number) {
        identifiers.append(u"org.example.%1"_s.arg(199 - number));
        browsers.append(browser(number % 2 == 0 ? u"Same"_s : u"SAME"_s, BrowserFamily::chromium, identifiers.last()));
    }
    QStringList sorted;
    for (const Browser &one : sortedForDisplay(browsers))
        sorted.append(one.bundleID);
    EXPECT_EQ(sorted, identifiers);
}

TEST_P(SortedForDisplay, NothingAndOneStayAsTheyAre)
{
    EXPECT_EQ(sortedForDisplay({}), QList<Browser>());
    EXPECT_EQ(sortedForDisplay({browser(u"Only"_s)}), QList<Browser>({browser(u"Only"_s)}));
}

TEST_P(SortedForDisplay, EveryBrowserStaysWholeAndOnce)
{
    const Browser first{u"a"_s, u"2"_s, QUrl(u"file:///two"_s), BrowserFamily::firefox};
    const Browser second{u"b"_s, u"1"_s, QUrl(u"file:///one"_s), BrowserFamily::chromium};
    EXPECT_EQ(sortedForDisplay({first, second, first}), QList<Browser>({second, first, first}));
}

TEST(Browser, TheUsersLanguageDecidesTheOrder)
{
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::Swedish));
    const QStringList swedish = sortedNames({u"Öppna"_s, u"Zulu"_s});
    QLocale::setDefault(QLocale(QLocale::German));
    const QStringList german = sortedNames({u"Zulu"_s, u"Öppna"_s});
    QLocale::setDefault(former);
    EXPECT_EQ(swedish, QStringList({u"Zulu"_s, u"Öppna"_s}));
    EXPECT_EQ(german, QStringList({u"Öppna"_s, u"Zulu"_s}));
}

TEST(Browser, TheNameIsTheFileNameWithoutItsExtension)
{
    const QList<std::pair<QString, QString>> rows{
        {u"file:///Applications/Google%20Chrome.app"_s, u"Google Chrome"_s},
        {u"file:///Applications/Google%20Chrome.app/"_s, u"Google Chrome"_s},
        {u"file:///Applications/Chrome%202.app"_s, u"Chrome 2"_s},
        {u"file:///Applications/Browser%201.5.app/"_s, u"Browser 1.5"_s},
        {u"file:///Applications/100%25%20%23Fox.app"_s, u"100% #Fox"_s},
        {u"file:///opt/browser/run"_s, u"run"_s},
        {u"file:///usr/share/applications/org.mozilla.firefox.desktop"_s, u"org.mozilla.firefox"_s},
        {u"file:///Applications/%F0%9F%A6%8A.app"_s, u"\U0001F98A"_s},
    };
    for (const auto &[url, name] : rows)
        EXPECT_EQ(applicationName(QUrl(url)), name) << url.toStdString();
}

TEST(Browser, EveryFieldCountsForEqualityAndHash)
{
    const Browser one = browser(u"One"_s);
    Browser otherID = one;
    otherID.bundleID = test::brave;
    Browser otherName = one;
    otherName.name = u"Other"_s;
    Browser otherPlace = one;
    otherPlace.url = QUrl(u"file:///elsewhere"_s);
    Browser otherFamily = one;
    otherFamily.family = BrowserFamily::firefox;
    EXPECT_EQ(one, Browser(one));
    EXPECT_EQ(qHash(one), qHash(Browser(one)));
    EXPECT_NE(qHash(one, 1), qHash(one, 2));
    for (const Browser &other : {otherID, otherName, otherPlace, otherFamily}) {
        EXPECT_NE(one, other);
        EXPECT_NE(qHash(one), qHash(other));
    }
}

TEST(Browser, ItsPrivateWindowIsNamedAsTheBrowserNamesIt)
{
    const QList<std::pair<QString, QString>> rows{
        {u"com.apple.Safari"_s, u"Private Window"_s},
        {u"com.apple.SafariTechnologyPreview"_s, u"Private Window"_s},
        {u"org.mozilla.firefox"_s, u"Private Window"_s},
        {u"org.mozilla.nightly"_s, u"Private Window"_s},
        {u"app.zen-browser.zen"_s, u"Private Window"_s},
        {u"com.microsoft.edgemac"_s, u"InPrivate Window"_s},
        {u"com.microsoft.edgemac.Beta"_s, u"InPrivate Window"_s},
        {u"com.microsoft.edgemac.Dev"_s, u"InPrivate Window"_s},
        {u"com.microsoft.edgemac.Canary"_s, u"InPrivate Window"_s},
        {u"com.google.Chrome"_s, u"Incognito Window"_s},
        {u"net.imput.helium"_s, u"Incognito Window"_s},
        {u"org.example.unknown"_s, u"Incognito Window"_s},
        {u""_s, u"Incognito Window"_s},
    };
    for (const auto &[identifier, name] : rows)
        EXPECT_EQ(privateWindowName(identifier), name) << identifier.toStdString();
}

TEST(Browser, ItsPrivateWindowIsNamedInTheUsersLanguage)
{
    const test::TranslatedProgram program(
        [](const QString &text) { return text == u"Private Window"_s ? u"Privates Fenster"_s : text.toUpper(); });
    EXPECT_EQ(privateWindowName(test::firefox), u"Privates Fenster"_s);
    EXPECT_EQ(privateWindowName(test::edge), u"INPRIVATE WINDOW"_s);
    EXPECT_EQ(privateWindowName(test::chrome), u"INCOGNITO WINDOW"_s);
}

} // namespace
} // namespace vantrel
