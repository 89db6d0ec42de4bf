#include "VantrelKit/DataFolder.h"

#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QFile>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;
using testing::UnorderedElementsAre;

namespace vantrel {
namespace {

using Kind = ProfileDiscoveryError::Kind;

std::vector<FolderEntry> listed(const QString &folder)
{
    const auto entries = listDataFolder(folder);
    EXPECT_TRUE(entries) << folder.toStdString();
    EXPECT_TRUE(entries && *entries) << folder.toStdString();
    return entries && *entries ? std::vector<FolderEntry>((*entries)->cbegin(), (*entries)->cend())
                               : std::vector<FolderEntry>();
}

std::error_code systemError(int number)
{
    return {number, std::system_category()};
}

/// What listing answers where nothing is allowed that is not allowed to everyone.
QString answerOf(const QString &folder)
{
    return test::answerOfUnprivilegedProcess([&folder] {
        const auto entries = listDataFolder(folder);
        if (!entries) {
            const bool denied = entries.error().kind == Kind::accessDenied;
            return QString((denied ? u"accessDenied "_s : u"readFailed "_s) + entries.error().path);
        }
        return *entries ? u"%1 entries"_s.arg((*entries)->size()) : u"no folder"_s;
    });
}

TEST(DataFolder, EveryEntryHasItsNameItsPathAndItsKind)
{
    const test::TemporaryFolder folder;
    folder.makeFolder(u"Profile 1/inner"_s);
    folder.write(u"Local State"_s);
    EXPECT_THAT(listed(folder.path()),
                UnorderedElementsAre(FolderEntry{u"Profile 1"_s, folder.path(u"Profile 1"_s), true},
                                     FolderEntry{u"Local State"_s, folder.path(u"Local State"_s), false}));
}

TEST(DataFolder, AnEmptyFolderHasNoEntriesAndAMissingOneIsNone)
{
    const test::TemporaryFolder folder;
    EXPECT_TRUE(listed(folder.path()).empty());
    const auto missing = listDataFolder(folder.path(u"missing"_s));
    ASSERT_TRUE(missing);
    EXPECT_EQ(*missing, std::nullopt);
    const auto belowMissing = listDataFolder(folder.path(u"missing/below"_s));
    ASSERT_TRUE(belowMissing);
    EXPECT_EQ(*belowMissing, std::nullopt);
}

TEST(DataFolder, HiddenEntriesAreLeftOut)
{
    const test::TemporaryFolder folder;
    folder.write(u".hidden"_s);
    folder.makeFolder(u".folder"_s);
    folder.write(u"..."_s);
    folder.write(u"not.hidden"_s);
    EXPECT_THAT(listed(folder.path()),
                UnorderedElementsAre(FolderEntry{u"not.hidden"_s, folder.path(u"not.hidden"_s), false}));
}

TEST(DataFolder, AnyNameIsListedAsItIs)
{
    const test::TemporaryFolder folder;
    std::vector<FolderEntry> expected;
    for (const QString &name : {u" "_s, u"a b "_s, u"line\nbreak"_s, u"\t\x1b"_s, u"'\"`$\\"_s, u"100% %20"_s,
                                u"a&b+c#d?"_s, u"caf\u00e9"_s, u"cafe\u0301"_s, u"\u05e9\u05dc\u202e"_s,
                                u"\U0001F600"_s, u"\uffff"_s, u"-rf"_s, u"*"_s, QString(255, u'x')}) {
        folder.write(name);
        expected.push_back({name, folder.path(name), false});
    }
    EXPECT_THAT(listed(folder.path()), testing::UnorderedElementsAreArray(expected));
}

TEST(DataFolder, ANameThatIsNoTextIsLeftOut)
{
    const test::TemporaryFolder folder;
    const QByteArray path = QFile::encodeName(folder.path()) + "/Profile \xff\xfe";
    const int descriptor = open(path.constData(), O_CREAT | O_WRONLY, 0644);
    ASSERT_GE(descriptor, 0);
    close(descriptor);
    folder.write(u"text"_s);
    EXPECT_THAT(listed(folder.path()), UnorderedElementsAre(FolderEntry{u"text"_s, folder.path(u"text"_s), false}));
    // Qt, which removes the folder, can't name the file either.
    EXPECT_EQ(unlink(path.constData()), 0);
}

TEST(DataFolder, LinksAreFollowedAndBrokenOnesAreNoFolders)
{
    const test::TemporaryFolder folder;
    const QString data = folder.makeFolder(u"data"_s);
    folder.link(u"data/to folder"_s, folder.makeFolder(u"elsewhere"_s));
    folder.link(u"data/to file"_s, folder.write(u"file"_s));
    folder.link(u"data/broken"_s, folder.path(u"nowhere"_s));
    folder.link(u"data/loop"_s, folder.path(u"data/loop"_s));
    EXPECT_THAT(listed(data), UnorderedElementsAre(FolderEntry{u"to folder"_s, data + u"/to folder"_s, true},
                                                   FolderEntry{u"to file"_s, data + u"/to file"_s, false},
                                                   FolderEntry{u"broken"_s, data + u"/broken"_s, false},
                                                   FolderEntry{u"loop"_s, data + u"/loop"_s, false}));
}

TEST(DataFolder, PipesAreListedWithoutBeingOpened)
{
    const test::TemporaryFolder folder;
    folder.makePipe(u"pipe"_s);
    EXPECT_EQ(answerOf(folder.path()), u"1 entries"_s);
}

TEST(DataFolder, TheFolderItselfMayBeALink)
{
    const test::TemporaryFolder folder;
    folder.write(u"real/file"_s);
    const QString link = folder.link(u"link"_s, folder.path(u"real"_s));
    EXPECT_THAT(listed(link), UnorderedElementsAre(FolderEntry{u"file"_s, link + u"/file"_s, false}));
}

TEST(DataFolder, AThousandEntriesAreAllListed)
{
    const test::TemporaryFolder folder;
    for (int number = 0; number < 1000; ++number)
        folder.write(u"file %1"_s.arg(number));
    EXPECT_EQ(listed(folder.path()).size(), 1000U);
}

TEST(DataFolder, AFolderThatMayNotBeReadIsDenied)
{
    const test::TemporaryFolder folder;
    folder.write(u"open/file"_s);
    const QString closed = folder.makeFolder(u"closed"_s);
    const test::ClosedPath guard(closed);
    EXPECT_EQ(answerOf(folder.path(u"open"_s)), u"1 entries"_s);
    EXPECT_EQ(answerOf(closed), u"accessDenied "_s + closed);
}

TEST(DataFolder, AFolderBelowOneThatMayNotBeEnteredIsDenied)
{
    const test::TemporaryFolder folder;
    const QString below = folder.makeFolder(u"closed/below"_s);
    const test::ClosedPath guard(folder.path(u"closed"_s));
    EXPECT_EQ(answerOf(below), u"accessDenied "_s + below);
    EXPECT_EQ(answerOf(below + u"/missing"_s), u"accessDenied "_s + below + u"/missing"_s);
}

TEST(DataFolder, AFolderThatMayBeListedButNotEnteredIsListed)
{
    const test::TemporaryFolder folder;
    const QString data = folder.makeFolder(u"data"_s);
    folder.makeFolder(u"data/Default"_s);
    folder.link(u"data/Profile 1"_s, folder.makeFolder(u"elsewhere"_s));
    const test::ClosedPath guard(data, 0444);
    EXPECT_EQ(answerOf(data), u"2 entries"_s);
}

TEST(DataFolder, AFileInItsPlaceFails)
{
    const test::TemporaryFolder folder;
    const QString file = folder.write(u"file"_s);
    const auto entries = listDataFolder(file);
    ASSERT_FALSE(entries);
    EXPECT_EQ(entries.error(), ProfileDiscoveryError::readFailed(file, u"Not a directory"_s));
    EXPECT_EQ(listDataFolder(file + u"/below"_s).error().kind, Kind::readFailed);
}

TEST(DataFolder, ALinkThatLeadsToItselfFails)
{
    const test::TemporaryFolder folder;
    const QString loop = folder.link(u"loop"_s, folder.path(u"loop"_s));
    const auto entries = listDataFolder(loop);
    ASSERT_FALSE(entries);
    EXPECT_EQ(entries.error().kind, Kind::readFailed);
    EXPECT_EQ(entries.error().path, loop);
    EXPECT_EQ(entries.error().reason, u"Too many levels of symbolic links"_s);
}

TEST(DataFolder, ANameThatIsTooLongFails)
{
    const QString path = u"/tmp/"_s + QString(300, u'x');
    EXPECT_EQ(listDataFolder(path).error(), ProfileDiscoveryError::readFailed(path, u"File name too long"_s));
}

TEST(DataFolder, TooManyOpenFilesAreAFailureAndNotAMissingFolder)
{
    const test::TemporaryFolder folder;
    const QString answer = test::answerOfUnprivilegedProcess([&folder] {
        // The sanitizer of undefined behaviour opens a pipe when it meets an error's category for the first time.
        if (!discoveryError(systemError(EMFILE), folder.path()))
            return u"No error."_s;
        const rlimit none{0, 0};
        if (setrlimit(RLIMIT_NOFILE, &none) != 0)
            return u"The limit could not be set."_s;
        const auto entries = listDataFolder(folder.path());
        return entries ? u"listed"_s : entries.error().reason;
    });
    EXPECT_EQ(answer, u"Too many open files"_s);
}

TEST(DataFolder, AMissingFolderIsNoError)
{
    EXPECT_EQ(discoveryError(systemError(ENOENT), u"/x"_s), std::nullopt);
    EXPECT_EQ(discoveryError(std::make_error_code(std::errc::no_such_file_or_directory), u"/x"_s), std::nullopt);
}

TEST(DataFolder, ARefusalIsDeniedAccess)
{
    for (const int number : {EPERM, EACCES}) {
        EXPECT_EQ(discoveryError(systemError(number), u"/x"_s), ProfileDiscoveryError::accessDenied(u"/x"_s));
        EXPECT_EQ(discoveryError({number, std::generic_category()}, u"/x"_s),
                  ProfileDiscoveryError::accessDenied(u"/x"_s));
    }
}

TEST(DataFolder, EveryOtherErrorIsAFailureInTheSystemsWords)
{
    for (const int number :
         {ENOTDIR, ELOOP, EIO, ENOMEM, EMFILE, ENFILE, ENAMETOOLONG, EINTR, ESTALE, EROFS, ENXIO, EBADF}) {
        EXPECT_EQ(discoveryError(systemError(number), u"/a b"_s),
                  ProfileDiscoveryError::readFailed(u"/a b"_s,
                                                    QString::fromStdString(std::generic_category().message(number))));
    }
}

TEST(DataFolder, NameEntryAndKindCountForEquality)
{
    const FolderEntry entry{u"a"_s, u"/a"_s, true};
    EXPECT_EQ(entry, (FolderEntry{u"a"_s, u"/a"_s, true}));
    EXPECT_NE(entry, (FolderEntry{u"b"_s, u"/a"_s, true}));
    EXPECT_NE(entry, (FolderEntry{u"a"_s, u"/b"_s, true}));
    EXPECT_NE(entry, (FolderEntry{u"a"_s, u"/a"_s, false}));
}

} // namespace
} // namespace vantrel
