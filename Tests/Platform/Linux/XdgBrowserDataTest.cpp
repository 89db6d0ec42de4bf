#include "Platform/Linux/XdgBrowserData.h"

#include "Tests/Contract/BrowserDataContract.h"
#include "Tests/Platform/Linux/PlantedHome.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Browsers installed in a home of their own.
class XdgSystem {
public:
    XdgSystem()
    {
        home_.installEntry(u"google-chrome.desktop"_s);
        home_.installEntry(u"firefox.desktop"_s);
        home_.installEntry(u"opera.desktop"_s);
        home_.write(u".mozilla/firefox/profiles.ini"_s);
        home_.write(u".config/mozilla/firefox/profiles.ini"_s);
        home_.write(u".config/opera/Preferences"_s);
    }

    const BrowserData &browserData() { return data_; }
    static QString installed() { return test::chrome; }
    static QString withSeveralFolders() { return test::firefox; }
    QStringList severalFolders()
    {
        return {home_.path(u".mozilla/firefox"_s), home_.path(u".config/mozilla/firefox"_s)};
    }
    static QString withSingleProfile() { return u"com.operasoftware.Opera"_s; }
    QString singleFolder() { return home_.path(u".config/opera"_s); }
    static QString missing() { return test::brave; }

private:
    test::PlantedHome home_;
    XdgBrowserData data_{InstallationFinder(home_.environment())};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Xdg, BrowserDataContract, XdgSystem);

} // namespace test

namespace {

TEST(XdgBrowserData, AFolderThatAppearsLaterIsSeen)
{
    const test::PlantedHome home;
    home.installEntry(u"firefox.desktop"_s);
    Environment environment;
    environment.home = home.path();
    environment.configHome = home.path(u".config"_s);
    environment.dataDirs = {home.path(u"share"_s)};
    const XdgBrowserData data{InstallationFinder(environment)};
    const QList<BrowserDataFolder> before{{.path = home.path(u".config/mozilla/firefox"_s)}};
    EXPECT_EQ(data.dataFolders(test::firefox), before);
    home.write(u".mozilla/firefox/profiles.ini"_s);
    const QList<BrowserDataFolder> after{{.path = home.path(u".mozilla/firefox"_s)}};
    EXPECT_EQ(data.dataFolders(test::firefox), after);
}

} // namespace
} // namespace vantrel
