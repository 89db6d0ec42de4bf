#include "Platform/Platform.h"
#include "Tests/Platform/Linux/PlantedHome.h"
#include "Tests/Platform/Linux/ScopedVariable.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(LinuxPlatform, ItLooksWhereTheProcesssVariablesPoint)
{
    const test::PlantedHome planted;
    const QString entry = planted.installEntry(u"google-chrome.desktop"_s);
    const test::ScopedVariable home("HOME", planted.path().toUtf8());
    const test::ScopedVariable config("XDG_CONFIG_HOME", planted.path(u"config"_s).toUtf8());
    const test::ScopedVariable data("XDG_DATA_HOME", planted.path(u"data"_s).toUtf8());
    const test::ScopedVariable dataDirs("XDG_DATA_DIRS", planted.path(u"share"_s).toUtf8());
    const test::ScopedVariable chromeConfig("CHROME_CONFIG_HOME", {});
    const test::ScopedVariable chromeData("CHROME_USER_DATA_DIR", {});
    const Platform platform = Platform::create();
    const auto application = platform.workspace->applicationWithBundleIdentifier(test::chrome);
    ASSERT_TRUE(application.has_value());
    EXPECT_EQ(application->url, QUrl::fromLocalFile(entry));
    EXPECT_EQ(platform.workspace->applicationWithBundleIdentifier(test::firefox), std::nullopt);
    const auto folders = platform.browserData->dataFolders(test::chrome);
    ASSERT_EQ(folders.size(), 1);
    EXPECT_EQ(folders.first().path, planted.path(u"config/google-chrome"_s));
}

} // namespace
} // namespace vantrel
