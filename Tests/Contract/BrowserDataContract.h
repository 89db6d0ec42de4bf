#pragma once

#include "Platform/BrowserData.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <concepts>
#include <ostream>
#include <thread>
#include <vector>

namespace vantrel {

/// How GoogleTest shows a folder.
inline void PrintTo(const BrowserDataFolder &folder, std::ostream *stream)
{
    const bool isSingle = folder.layout == BrowserDataFolder::Layout::singleProfile;
    *stream << folder.path.toStdString() << (isSingle ? " (the profile itself)" : "");
}

} // namespace vantrel

/// What every implementation of `BrowserData` keeps to:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, BrowserDataContract, System)`.
namespace vantrel::test {

/// Where an implementation runs. It provides browsers by their bundle identifiers.
template <typename System>
concept BrowserDataSystem = std::default_initializable<System> && requires(System system) {
    { system.browserData() } -> std::same_as<const BrowserData &>;
    /// Is installed and has never been started.
    { system.installed() } -> std::same_as<QString>;
    /// Keeps profiles in the folders of `severalFolders`, the one in use first.
    { system.withSeveralFolders() } -> std::same_as<QString>;
    { system.severalFolders() } -> std::same_as<QStringList>;
    /// Keeps its only profile in the data folder itself, `singleFolder`.
    { system.withSingleProfile() } -> std::same_as<QString>;
    { system.singleFolder() } -> std::same_as<QString>;
    /// Isn't installed.
    { system.missing() } -> std::same_as<QString>;
};

template <BrowserDataSystem System>
class BrowserDataContract : public testing::Test {
protected:
    [[nodiscard]] QList<BrowserDataFolder> folders(const QString &bundleID)
    {
        return system_.browserData().dataFolders(bundleID);
    }

    System system_;
};

TYPED_TEST_SUITE_P(BrowserDataContract);

TYPED_TEST_P(BrowserDataContract, ABrowserThatWasNeverStartedHasTheFolderThatItWillMake)
{
    const QList<BrowserDataFolder> folders = this->folders(this->system_.installed());
    ASSERT_EQ(folders.size(), 1);
    EXPECT_TRUE(folders.first().path.startsWith(u'/')) << folders.first().path.toStdString();
    EXPECT_EQ(folders.first().layout, BrowserDataFolder::Layout::manyProfiles);
}

TYPED_TEST_P(BrowserDataContract, TheFolderInUseComesBeforeTheOthersAndNoneComesTwice)
{
    QList<BrowserDataFolder> expected;
    for (const QString &path : this->system_.severalFolders())
        expected.append({.path = path});
    ASSERT_GE(expected.size(), 2);
    EXPECT_EQ(this->folders(this->system_.withSeveralFolders()), expected);
}

TYPED_TEST_P(BrowserDataContract, AFolderThatIsItselfTheProfileSaysSo)
{
    const QList<BrowserDataFolder> expected{
        {.path = this->system_.singleFolder(), .layout = BrowserDataFolder::Layout::singleProfile}};
    EXPECT_EQ(this->folders(this->system_.withSingleProfile()), expected);
}

TYPED_TEST_P(BrowserDataContract, ABrowserThatIsNotInstalledHasNoFolder)
{
    EXPECT_EQ(this->folders(this->system_.missing()), QList<BrowserDataFolder>());
}

TYPED_TEST_P(BrowserDataContract, SafariAndUnknownBrowsersHaveNoFolder)
{
    const QString installed = this->system_.installed();
    for (const QString &bundleID : {safari, unknownBrowser, QString(), installed.toUpper(), installed.chopped(1)})
        EXPECT_EQ(this->folders(bundleID), QList<BrowserDataFolder>()) << bundleID.toStdString();
}

TYPED_TEST_P(BrowserDataContract, FoldersAreFoundOnAnyThread)
{
    const QString bundleID = this->system_.withSeveralFolders();
    const QList<BrowserDataFolder> expected = this->folders(bundleID);
    std::vector<QList<BrowserDataFolder>> found(4);
    std::vector<std::thread> threads;
    for (auto &place : found) {
        threads.emplace_back([this, &place, &bundleID] {
            for (int time = 0; time < 25; ++time)
                place = this->folders(bundleID);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const auto &place : found)
        EXPECT_EQ(place, expected);
}

REGISTER_TYPED_TEST_SUITE_P(BrowserDataContract, ABrowserThatWasNeverStartedHasTheFolderThatItWillMake,
                            TheFolderInUseComesBeforeTheOthersAndNoneComesTwice, AFolderThatIsItselfTheProfileSaysSo,
                            ABrowserThatIsNotInstalledHasNoFolder, SafariAndUnknownBrowsersHaveNoFolder,
                            FoldersAreFoundOnAnyThread);

} // namespace vantrel::test
