#include "Vantrel/CheckForUpdatesModel.h"

#include "Tests/Fakes/FakeUpdater.h"

#include <gtest/gtest.h>

#include <memory>

namespace vantrel {
namespace {

TEST(CheckForUpdatesModel, TakesTheUpdatersPresentValue)
{
    test::FakeUpdater updater;
    EXPECT_FALSE(CheckForUpdatesModel(updater).canCheckForUpdates());
    updater.setCanCheckForUpdates(true);
    EXPECT_TRUE(CheckForUpdatesModel(updater).canCheckForUpdates());
}

TEST(CheckForUpdatesModel, FollowsTheUpdater)
{
    test::FakeUpdater updater;
    updater.setCanCheckForUpdates(true);
    CheckForUpdatesModel model(updater);
    int changes = 0;
    QObject::connect(&model, &CheckForUpdatesModel::canCheckForUpdatesChanged, &model, [&changes] { ++changes; });
    updater.setCanCheckForUpdates(false);
    EXPECT_FALSE(model.canCheckForUpdates());
    updater.setCanCheckForUpdates(false);
    updater.setCanCheckForUpdates(true);
    EXPECT_TRUE(model.canCheckForUpdates());
    EXPECT_EQ(changes, 2);
}

TEST(CheckForUpdatesModel, ChecksOnlyWhileTheUpdaterAcceptsIt)
{
    test::FakeUpdater updater;
    CheckForUpdatesModel model(updater);
    model.checkForUpdates();
    EXPECT_EQ(updater.checks(), 0);
    updater.setCanCheckForUpdates(true);
    model.checkForUpdates();
    EXPECT_EQ(updater.checks(), 1);
}

TEST(CheckForUpdatesModel, AnUpdaterMayOutliveIt)
{
    test::FakeUpdater updater;
    std::make_unique<CheckForUpdatesModel>(updater).reset();
    updater.setCanCheckForUpdates(true);
    SUCCEED();
}

} // namespace
} // namespace vantrel
