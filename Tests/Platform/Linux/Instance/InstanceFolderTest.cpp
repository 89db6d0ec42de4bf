#include "Platform/Linux/Instance/InstanceFolder.h"

#include "Platform/Linux/Instance/InstanceSocketPath.h"
#include "Tests/Platform/Linux/Instance/AnotherUser.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class InstanceFolderTest : public testing::Test {
protected:
    [[nodiscard]] static mode_t mode(const QString &path)
    {
        struct stat status{};
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
        return status.st_mode & 07777;
    }

    [[nodiscard]] static QString socketPath(const QString &runtimeFolder, const QString &temporaryFolder)
    {
        QProcessEnvironment variables;
        variables.insert(u"XDG_RUNTIME_DIR"_s, runtimeFolder);
        variables.insert(u"TMPDIR"_s, temporaryFolder);
        return instanceSocketPath(variables);
    }

    /// What opening or making a folder fails with.
    template <typename Result>
    [[nodiscard]] static QString failure(const Result &folder)
    {
        return folder ? u"no failure"_s : folder.error().message;
    }

    test::TemporaryFolder home_;
};

TEST_F(InstanceFolderTest, TheSocketIsInTheRuntimeFolder)
{
    EXPECT_EQ(socketPath(home_.path(), u"/elsewhere"_s), home_.path(u"app.kestrune.Vantrel/socket"_s));
}

TEST_F(InstanceFolderTest, WithoutARuntimeFolderOfTheUsersItIsInTheTemporaryOneUnderTheUsersNumber)
{
    const QString name = u"/app.kestrune.Vantrel-%1/socket"_s.arg(geteuid());
    const test::ForeignFolder foreign;
    for (const QString &runtime : {u""_s, u"relative"_s, u"/no/such/folder"_s, u"/dev/null"_s, foreign.path()}) {
        EXPECT_EQ(socketPath(runtime, u"/var/tmp"_s), QString(u"/var/tmp"_s + name)) << runtime.toStdString();
        EXPECT_EQ(socketPath(runtime, u""_s), QString(u"/tmp"_s + name)) << runtime.toStdString();
        EXPECT_EQ(socketPath(runtime, u"relative"_s), QString(u"/tmp"_s + name)) << runtime.toStdString();
    }
}

TEST_F(InstanceFolderTest, AFolderThatIsNotThereIsNone)
{
    const auto folder = InstanceFolder::open(home_.path(u"missing"_s));
    ASSERT_TRUE(folder.has_value()) << folder.error().message.toStdString();
    EXPECT_FALSE(folder->exists());
}

TEST_F(InstanceFolderTest, AFolderIsMadeForTheUserAlone)
{
    const mode_t former = umask(0);
    const auto folder = InstanceFolder::make(home_.path(u"new"_s));
    umask(former);
    ASSERT_TRUE(folder.has_value()) << folder.error().message.toStdString();
    EXPECT_EQ(mode(home_.path(u"new"_s)), 0700U);
}

TEST_F(InstanceFolderTest, AnOpenFolderIsClosedToOthers)
{
    const test::ClosedPath open(home_.makeFolder(u"old"_s), 0777);
    const auto folder = InstanceFolder::make(home_.path(u"old"_s));
    ASSERT_TRUE(folder.has_value()) << folder.error().message.toStdString();
    EXPECT_EQ(mode(home_.path(u"old"_s)), 0700U);
}

TEST_F(InstanceFolderTest, AnotherUsersFolderIsRefused)
{
    const test::ForeignFolder foreign;
    const QString message = u"The folder %1 belongs to another user, so that it can't be trusted. Remove it and try "
                            "again."_s.arg(foreign.path());
    EXPECT_EQ(failure(InstanceFolder::open(foreign.path())), message);
    EXPECT_EQ(failure(InstanceFolder::make(foreign.path())), message);
}

TEST_F(InstanceFolderTest, ALinkIsNotFollowed)
{
    const QString link = home_.link(u"link"_s, home_.makeFolder(u"destination"_s));
    for (const QString &message : {failure(InstanceFolder::open(link)), failure(InstanceFolder::make(link))})
        EXPECT_EQ(message, QString(link + u" can't be used: Not a directory."_s));
}

TEST_F(InstanceFolderTest, WhatIsNoFolderIsAnErrorWithTheSystemsReason)
{
    const QString file = home_.write(u"file"_s);
    EXPECT_EQ(failure(InstanceFolder::make(file)), QString(file + u" can't be used: Not a directory."_s));
    const QString nowhere = home_.path(u"no/such/folder"_s);
    EXPECT_EQ(failure(InstanceFolder::make(nowhere)),
              QString(nowhere + u" can't be used: No such file or directory."_s));
}

TEST_F(InstanceFolderTest, PathsLeadIntoTheFolderEvenWhenAnotherTookItsPlace)
{
    const auto folder = InstanceFolder::make(home_.path(u"folder"_s));
    ASSERT_TRUE(folder.has_value());
    ASSERT_TRUE(QDir().rename(home_.path(u"folder"_s), home_.path(u"moved"_s)));
    home_.write(u"moved/socket"_s, "ours");
    home_.write(u"folder/socket"_s, "theirs");
    QFile file(QFile::decodeName(folder->path(InstanceFolder::socketName)));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "ours");
}

} // namespace
} // namespace vantrel
