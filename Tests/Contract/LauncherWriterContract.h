#pragma once

#include "Platform/LauncherWriter.h"
#include "Tests/Fakes/FailingFileSystem.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/VantrelKit/Printing.h"

#include <QCoroTask>
#include <QDir>
#include <QDirIterator>
#include <QMap>

#include <gtest/gtest.h>

#include <concepts>

/// What every writer of launchers to files keeps to:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, LauncherWriterContract, System)`. Needs a QCoreApplication.
namespace vantrel::test {

/// Where a writer works.
template <typename System>
concept LauncherWriterSystem = std::default_initializable<System> && requires(System system) {
    { system.writer() } -> std::same_as<LauncherWriter &>;
    { system.files() } -> std::same_as<FailingFileSystem &>;
    /// Everything that the writer may change lies below it, its working files excepted.
    { system.root() } -> std::same_as<QString>;
    /// A folder below the root that is there and isn't the usual one.
    { system.folder() } -> std::same_as<QString>;
};

/// A launcher whose icon has one colour.
inline Launcher sampleLauncher(const QString &title, const QString &profileID = QStringLiteral("b/chromium:1"),
                               const QColor &color = Qt::blue)
{
    return {
        .profileID = profileID,
        .title = title,
        .link = {.browserBundleID = QStringLiteral("b"), .profileName = title, .profileID = profileID, .urls = {}},
        .icon =
            [color](int pixels) {
                QImage image(pixels, pixels, QImage::Format_RGBA8888_Premultiplied);
                image.fill(color);
                return image;
            },
    };
}

/// The content of every file below a folder, by its path there.
inline QMap<QString, QByteArray> contentOf(const QString &folder)
{
    QMap<QString, QByteArray> content;
    QDirIterator paths(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        QFile file(paths.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        content.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return content;
}

template <LauncherWriterSystem System>
class LauncherWriterContract : public testing::Test {
protected:
    [[nodiscard]] QString place() { return system_.writer().placeIn(system_.folder(), id(), QStringLiteral("Work")); }
    [[nodiscard]] static QString id() { return sampleLauncher({}).profileID; }

    [[nodiscard]] std::expected<QUrl, PlatformError> write(const Launcher &launcher, const QString &place)
    {
        return QCoro::waitFor(system_.writer().write(launcher, place));
    }
    [[nodiscard]] std::expected<void, PlatformError> remove(const QString &profileID, const QString &place)
    {
        return QCoro::waitFor(system_.writer().remove(profileID, place));
    }
    [[nodiscard]] QMap<QString, QByteArray> content() { return contentOf(system_.root()); }

    EventProgram program_;
    System system_;
};

TYPED_TEST_SUITE_P(LauncherWriterContract);

TYPED_TEST_P(LauncherWriterContract, ALauncherIsWrittenWhereItIsWanted)
{
    const auto made = this->write(sampleLauncher(QStringLiteral("Work")), this->place());
    ASSERT_TRUE(made) << made.error().message.toStdString();
    EXPECT_EQ(made->toLocalFile(), this->place());
    EXPECT_TRUE(this->place().startsWith(this->system_.folder() + u'/'));
    EXPECT_TRUE(QFileInfo::exists(this->place()));
}

TYPED_TEST_P(LauncherWriterContract, WithoutAFolderThePlaceIsInThePanelsFolderWhichIsMadeWhenNeeded)
{
    LauncherWriter &writer = this->system_.writer();
    const QString place = writer.placeIn(std::nullopt, this->id(), QStringLiteral("Work"));
    EXPECT_EQ(QFileInfo(place).path(), writer.panel(QStringLiteral("Work")).folder);
    EXPECT_TRUE(this->system_.files().makeFolder(QFileInfo(place).path()));
    EXPECT_TRUE(this->write(sampleLauncher(QStringLiteral("Work")), place));
    EXPECT_TRUE(QFileInfo::exists(place));
}

TYPED_TEST_P(LauncherWriterContract, MadeAgainItReplacesTheEarlierOneWithAllThatBelongedToIt)
{
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Work")), this->place()));
    const auto first = this->content();
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Other"), this->id(), Qt::red), this->place()));
    EXPECT_EQ(this->content().size(), first.size());
    EXPECT_NE(this->content(), first);
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Work")), this->place()));
    EXPECT_EQ(this->content(), first);
}

TYPED_TEST_P(LauncherWriterContract, AFailureAtAnyStepLeavesTheEarlierOneAsItWas)
{
    FailingFileSystem &files = this->system_.files();
    int failures = 0;
    for (int step = 1;; ++step) {
        files.failAt(0);
        ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Work")), this->place()));
        const auto before = this->content();
        files.failAt(step);
        const auto made = this->write(sampleLauncher(QStringLiteral("Other"), this->id(), Qt::red), this->place());
        if (files.steps().size() < step)
            break;
        // Tidying up afterwards may fail.
        if (made)
            continue;
        ++failures;
        EXPECT_EQ(made.error().message, QStringLiteral("No: ") + files.steps().at(step - 1));
        EXPECT_EQ(this->content(), before) << files.steps().at(step - 1).toStdString();
    }
    EXPECT_GE(failures, 7);
}

TYPED_TEST_P(LauncherWriterContract, AFailureWithoutAnEarlierOneLeavesNothing)
{
    const auto before = this->content();
    FailingFileSystem &files = this->system_.files();
    for (int step = 1; step <= 7; ++step) {
        files.failAt(step);
        EXPECT_FALSE(this->write(sampleLauncher(QStringLiteral("Work")), this->place())) << step;
        EXPECT_EQ(this->content(), before) << files.steps().at(step - 1).toStdString();
    }
}

TYPED_TEST_P(LauncherWriterContract, LaunchersOfDifferentProfilesAndInDifferentFoldersAreKeptApart)
{
    LauncherWriter &writer = this->system_.writer();
    const QString other = QStringLiteral("b/chromium:2");
    const QString otherPlace = writer.placeIn(this->system_.folder(), other, QStringLiteral("Home"));
    const QString usual = writer.placeIn(std::nullopt, this->id(), QStringLiteral("Work"));
    ASSERT_TRUE(this->system_.files().makeFolder(QFileInfo(usual).path()));
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Home"), other), otherPlace));
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Work")), usual));
    const auto before = this->content();
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Work")), this->place()));
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Work"), this->id(), Qt::red), this->place()));
    ASSERT_TRUE(this->remove(this->id(), this->place()));
    EXPECT_EQ(this->content(), before);
}

TYPED_TEST_P(LauncherWriterContract, ARemovedOneLeavesNothingAndCannotBeRemovedAgain)
{
    const auto before = this->content();
    ASSERT_TRUE(this->write(sampleLauncher(QStringLiteral("Work")), this->place()));
    EXPECT_TRUE(this->remove(this->id(), this->place()));
    EXPECT_EQ(this->content(), before);
    const auto again = this->remove(this->id(), this->place());
    ASSERT_FALSE(again);
    EXPECT_TRUE(again.error().message.contains(this->place()));
}

REGISTER_TYPED_TEST_SUITE_P(LauncherWriterContract, ALauncherIsWrittenWhereItIsWanted,
                            WithoutAFolderThePlaceIsInThePanelsFolderWhichIsMadeWhenNeeded,
                            MadeAgainItReplacesTheEarlierOneWithAllThatBelongedToIt,
                            AFailureAtAnyStepLeavesTheEarlierOneAsItWas, AFailureWithoutAnEarlierOneLeavesNothing,
                            LaunchersOfDifferentProfilesAndInDifferentFoldersAreKeptApart,
                            ARemovedOneLeavesNothingAndCannotBeRemovedAgain);

} // namespace vantrel::test
