#include "Platform/LocalFileSystem.h"

#include "Tests/Platform/ExtendedAttribute.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Access = FileSystem::Access;

std::error_code cannotExchange(const std::filesystem::path & /*one*/, const std::filesystem::path & /*other*/)
{
    return std::make_error_code(std::errc::not_supported);
}

/// In one step, and where the system can't do that.
class Replacing : public testing::TestWithParam<LocalFileSystem::Exchange> {
protected:
    [[nodiscard]] QStringList names() const
    {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    LocalFileSystem files{GetParam() ? LocalFileSystem(GetParam()) : LocalFileSystem()};
    test::TemporaryFolder folder;
    test::TemporaryFolder elsewhere;
};

TEST_P(Replacing, AnItemIsMovedWhereNothingIs)
{
    elsewhere.write(u"item/inner/file"_s, "new");
    EXPECT_TRUE(files.replaceItem(folder.path(u"place"_s), elsewhere.path(u"item"_s)));
    EXPECT_EQ(folder.read(u"place/inner/file"_s), "new");
    EXPECT_EQ(names(), QStringList(u"place"_s));
    EXPECT_FALSE(QFileInfo::exists(elsewhere.path(u"item"_s)));
}

TEST_P(Replacing, WhateverIsThereGoes)
{
    for (const auto &plant : QList<std::function<void()>>{
             [this] { folder.write(u"place/old/file"_s, "old"); },
             [this] { folder.write(u"place"_s, "old"); },
             [this] { folder.link(u"place"_s, u"/nonexistent"_s); },
             [this] { folder.link(u"place"_s, elsewhere.write(u"precious"_s)); },
         }) {
        EXPECT_TRUE(files.remove(folder.path(u"place"_s)));
        plant();
        elsewhere.write(u"item/new"_s, "new");
        const auto replaced = files.replaceItem(folder.path(u"place"_s), elsewhere.path(u"item"_s));
        EXPECT_TRUE(replaced) << replaced.error().message.toStdString();
        EXPECT_EQ(folder.read(u"place/new"_s), "new");
        EXPECT_FALSE(QFileInfo::exists(folder.path(u"place/old"_s)));
        EXPECT_EQ(names(), QStringList(u"place"_s));
    }
}

TEST_P(Replacing, AFailureLeavesBothAsTheyWere)
{
    folder.write(u"place/old"_s, "old");
    const auto missing = files.replaceItem(folder.path(u"place"_s), elsewhere.path(u"item"_s));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().message, folder.path(u"place"_s) + u": No such file or directory."_s);
    elsewhere.write(u"item/new"_s, "new");
    EXPECT_FALSE(files.replaceItem(folder.path(u"no folder/place"_s), elsewhere.path(u"item"_s)));
    EXPECT_EQ(elsewhere.read(u"item/new"_s), "new");
    EXPECT_EQ(folder.read(u"place/old"_s), "old");
    EXPECT_EQ(names(), QStringList(u"place"_s));
}

TEST_P(Replacing, AClosedFolderLeavesBothAsTheyWere)
{
    folder.write(u"place/old"_s, "old");
    elsewhere.write(u"item/new"_s, "new");
    const QString answer = test::answerOfUnprivilegedProcess([this] {
        const auto replaced = files.replaceItem(folder.path(u"place"_s), elsewhere.path(u"item"_s));
        return replaced ? u"replaced"_s : replaced.error().message;
    });
    EXPECT_EQ(answer, folder.path(u"place"_s) + u": Permission denied."_s);
    EXPECT_EQ(elsewhere.read(u"item/new"_s), "new");
    EXPECT_EQ(folder.read(u"place/old"_s), "old");
}

INSTANTIATE_TEST_SUITE_P(InOneStep, Replacing, testing::Values(LocalFileSystem::Exchange()));
INSTANTIATE_TEST_SUITE_P(InTwoSteps, Replacing, testing::Values(LocalFileSystem::Exchange(cannotExchange)));

TEST(LocalFileSystem, AnExchangeThatFailsPutsTheItemBack)
{
    const test::TemporaryFolder folder;
    folder.write(u"place"_s, "old");
    folder.write(u"item"_s, "new");
    LocalFileSystem files([](const auto &, const auto &) { return std::make_error_code(std::errc::io_error); });
    const auto replaced = files.replaceItem(folder.path(u"place"_s), folder.path(u"item"_s));
    ASSERT_FALSE(replaced);
    EXPECT_EQ(replaced.error().message, folder.path(u"place"_s) + u": Input/output error."_s);
    EXPECT_EQ(folder.read(u"place"_s), "old");
    EXPECT_EQ(folder.read(u"item"_s), "new");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 2);
}

TEST(LocalFileSystem, AnItemIsMovedFromAnotherDisk)
{
    struct stat one{};
    struct stat other{};
    const test::TemporaryFolder folder;
    // Memory, on any Linux.
    QTemporaryDir memory(u"/dev/shm/vantrel-XXXXXX"_s);
    ASSERT_TRUE(memory.isValid());
    ASSERT_EQ(stat(folder.path().toLocal8Bit().constData(), &one), 0);
    ASSERT_EQ(stat(memory.path().toLocal8Bit().constData(), &other), 0);
    ASSERT_NE(one.st_dev, other.st_dev);
    LocalFileSystem files;
    const QString item = memory.filePath(u"item"_s);
    ASSERT_TRUE(files.makeFolder(item));
    ASSERT_TRUE(files.write(item + u"/program"_s, "new", Access::executable));
    folder.write(u"place/old"_s, "old");
    EXPECT_TRUE(files.replaceItem(folder.path(u"place"_s), item));
    EXPECT_EQ(folder.read(u"place/program"_s), "new");
    EXPECT_TRUE(QFileInfo(folder.path(u"place/program"_s)).isExecutable());
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"place/old"_s)));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

TEST(LocalFileSystem, AFileIsWrittenWithTheRightsThatItIsToHave)
{
    const test::TemporaryFolder folder;
    LocalFileSystem files;
    const QString path = folder.path(u"file"_s);
    const auto mode = [&path] {
        struct stat status{};
        EXPECT_EQ(stat(path.toLocal8Bit().constData(), &status), 0);
        return status.st_mode & 07777U;
    };
    EXPECT_TRUE(files.write(path, "one", Access::executable));
    EXPECT_EQ(mode(), 0755U);
    EXPECT_TRUE(files.write(path, "two", Access::readable));
    EXPECT_EQ(mode(), 0644U);
    EXPECT_EQ(folder.read(u"file"_s), "two");
    const auto failed = files.write(folder.path(u"none/file"_s), "three", Access::readable);
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().message, folder.path(u"none/file"_s) + u": No such file or directory."_s);
}

TEST(LocalFileSystem, AProgramsCopyCanBeExecutedAndReplaced)
{
    const test::TemporaryFolder folder;
    LocalFileSystem files;
    folder.write(u"program"_s, "code");
    const QString copy = folder.path(u"copy"_s);
    EXPECT_TRUE(files.copyProgram(folder.path(u"program"_s), copy));
    EXPECT_TRUE(files.copyProgram(folder.path(u"program"_s), copy));
    EXPECT_EQ(folder.read(u"copy"_s), "code");
    EXPECT_TRUE(QFileInfo(copy).isExecutable());
    const auto failed = files.copyProgram(folder.path(u"none"_s), copy);
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().message, copy + u": No such file or directory."_s);
}

TEST(LocalFileSystem, FoldersAreMadeWithAllAboveThemAndMayBeThere)
{
    const test::TemporaryFolder folder;
    LocalFileSystem files;
    EXPECT_TRUE(files.makeFolder(folder.path(u"a/ü b/c"_s)));
    EXPECT_TRUE(files.makeFolder(folder.path(u"a/ü b/c"_s)));
    EXPECT_TRUE(QFileInfo(folder.path(u"a/ü b/c"_s)).isDir());
    folder.write(u"file"_s);
    const auto failed = files.makeFolder(folder.path(u"file/x"_s));
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().message, folder.path(u"file/x"_s) + u": Not a directory."_s);
}

TEST(LocalFileSystem, AnAttributeIsRemovedOfTheItemItselfAndMayBeMissing)
{
    const test::TemporaryFolder folder;
    LocalFileSystem files;
    const QString file = folder.write(u"file"_s);
    ASSERT_TRUE(test::setAttribute(file, "user.mark")) << "This file system has no attributes.";
    EXPECT_TRUE(files.removeAttribute(folder.link(u"link"_s, file), u"com.apple.quarantine"_s));
    EXPECT_TRUE(test::hasAttribute(file, "user.mark"));
    EXPECT_TRUE(files.removeAttribute(file, u"user.mark"_s));
    EXPECT_FALSE(test::hasAttribute(file, "user.mark"));
    EXPECT_TRUE(files.removeAttribute(file, u"user.mark"_s));
    EXPECT_TRUE(files.removeAttribute(file, u"com.apple.quarantine"_s));
    EXPECT_FALSE(files.removeAttribute(folder.path(u"none"_s), u"user.mark"_s));
}

TEST(LocalFileSystem, WhatIsRemovedGoesWithAllItHoldsAndMayBeMissing)
{
    const test::TemporaryFolder folder;
    LocalFileSystem files;
    const QString precious = folder.write(u"precious/file"_s);
    folder.write(u"a/b/c"_s);
    folder.link(u"a/link"_s, folder.path(u"precious"_s));
    EXPECT_TRUE(files.remove(folder.path(u"a"_s)));
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"a"_s)));
    EXPECT_TRUE(QFileInfo::exists(precious));
    EXPECT_TRUE(files.remove(folder.path(u"a"_s)));
}

} // namespace
} // namespace vantrel
