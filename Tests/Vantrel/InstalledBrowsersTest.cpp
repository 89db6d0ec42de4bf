#include "Vantrel/InstalledBrowsers.h"

#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QStringList names(const QList<Browser> &browsers)
{
    QStringList result;
    for (const Browser &browser : browsers)
        result.append(browser.name);
    return result;
}

TEST(InstalledBrowsers, OnlyInstalledOnesCountWithTheirNameAndPlaceAndFamily)
{
    test::FakeWorkspace workspace;
    const QUrl url = workspace.install(test::firefox, u"Fox 2"_s);
    const QList<Browser> expected{{test::firefox, u"Fox 2"_s, url, BrowserFamily::firefox}};
    EXPECT_EQ(installedBrowsers(workspace, KnownBrowsers::all()), expected);
    workspace.uninstall(test::firefox);
    EXPECT_EQ(installedBrowsers(workspace, KnownBrowsers::all()), QList<Browser>());
}

TEST(InstalledBrowsers, OnlyTheOnesAskedForCount)
{
    test::FakeWorkspace workspace;
    workspace.install(test::firefox, u"Firefox"_s);
    workspace.install(test::chrome, u"Chrome"_s);
    EXPECT_EQ(names(installedBrowsers(workspace, {test::chrome, test::brave})), QStringList(u"Chrome"_s));
    EXPECT_EQ(installedBrowsers(workspace, {}), QList<Browser>());
}

TEST(InstalledBrowsers, AnApplicationThatIsNoKnownBrowserDoesNotCount)
{
    test::FakeWorkspace workspace;
    workspace.install(test::unknownBrowser, u"Unknown"_s);
    EXPECT_EQ(installedBrowsers(workspace, {test::unknownBrowser}), QList<Browser>());
}

TEST(InstalledBrowsers, SafariComesFirstThenNamesAsPeopleOrderThem)
{
    test::FakeWorkspace workspace;
    workspace.install(test::chrome, u"Browser 10"_s);
    workspace.install(test::brave, u"Browser 9"_s);
    workspace.install(test::edge, u"alpha"_s);
    workspace.install(test::zen, u"Beta"_s);
    workspace.install(test::safari, u"Safari"_s);
    workspace.install(u"com.apple.SafariTechnologyPreview"_s, u"A preview"_s);
    EXPECT_EQ(names(installedBrowsers(workspace, KnownBrowsers::all())),
              (QStringList{u"A preview"_s, u"Safari"_s, u"alpha"_s, u"Beta"_s, u"Browser 9"_s, u"Browser 10"_s}));
}

TEST(InstalledBrowsers, EqualNamesKeepTheOrderAskedFor)
{
    test::FakeWorkspace workspace;
    const QStringList bundleIDs{test::zen, test::chrome, test::firefox, test::brave};
    for (const QString &bundleID : bundleIDs)
        workspace.install(bundleID, u"Browser"_s);
    QStringList found;
    for (const Browser &browser : installedBrowsers(workspace, bundleIDs))
        found.append(browser.bundleID);
    EXPECT_EQ(found, bundleIDs);
}

} // namespace
} // namespace vantrel
