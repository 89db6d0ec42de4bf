#include "Tests/Platform/Linux/Processes/ProcessesFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::brave;
using test::chrome;

class ChromiumProcessesTest : public test::ProcessesFixture {
protected:
    void plantLock(const QString &destination) const { folder_.link(u"chrome/SingletonLock"_s, destination); }

    /// How many folders this program watches, as proc(5) tells of them.
    [[nodiscard]] static qsizetype watchCount()
    {
        qsizetype count = 0;
        for (const QFileInfo &info : QDir(u"/proc/self/fdinfo"_s).entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            if (file.open(QIODevice::ReadOnly))
                count += file.readAll().count("inotify wd:");
        }
        return count;
    }

    [[nodiscard]] QString lockDestination() const
    {
        return QString::fromStdString(std::filesystem::read_symlink(lock().toStdString()).string());
    }

    [[nodiscard]] QString lock() const { return folder_.path(u"chrome/SingletonLock"_s); }
};

TEST_F(ChromiumProcessesTest, AnEndIsToldOnceHoweverItCame)
{
    for (const bool isKilled : {false, true}) {
        const auto browser = startChrome();
        if (!isKilled)
            watch({chrome, brave});
        QCoreApplication::processEvents();
        EXPECT_TRUE(isRunning(chrome));
        isKilled ? browser->kill() : browser->close();
        EXPECT_FALSE(isRunning(chrome));
        EXPECT_EQ(told(), QStringList(chrome));
        EXPECT_EQ(QFileInfo(lock()).isSymLink(), isKilled);
    }
}

TEST_F(ChromiumProcessesTest, ABrowserRunsOnWhenItsLockIsGone)
{
    const auto browser = startChrome();
    watch({chrome, brave});
    ASSERT_TRUE(QFile::remove(lock()));
    EXPECT_EQ(told(), QStringList());
    EXPECT_TRUE(isRunning(chrome));
    browser->kill();
    EXPECT_EQ(told(), QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, ADataFolderIsWatchedThatIsMadeLater)
{
    data_.setFolder(chrome, folder_.path(u"not/yet/there/chrome"_s));
    watch({chrome, brave});
    EXPECT_FALSE(isRunning(chrome));
    for (int time = 0; time < 2; ++time) {
        const auto browser = start(u"not/yet/there/chrome"_s, u"sockets"_s);
        QCoreApplication::processEvents();
        browser->kill();
        EXPECT_EQ(told(), QStringList(chrome));
        // And one that is removed and made anew.
        ASSERT_TRUE(QDir(folder_.path(u"not/yet"_s)).removeRecursively());
        QCoreApplication::processEvents();
    }
}

TEST_F(ChromiumProcessesTest, ADataFolderIsWatchedThatGrowsStepByStepAmongOthers)
{
    data_.setFolder(chrome, folder_.path(u"a/bc/chrome"_s));
    watch({chrome, brave});
    for (const auto &path : {u"b"_s, u"a"_s, u"a/b"_s, u"a/bcd"_s, u"a/bc"_s}) {
        folder_.makeFolder(path);
        QCoreApplication::processEvents();
    }
    const auto browser = start(u"a/bc/chrome"_s, u"sockets"_s);
    QCoreApplication::processEvents();
    browser->kill();
    EXPECT_EQ(told(), QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, WhatIsAboveADataFolderIsNoLongerWatchedOnceThatExists)
{
    folder_.makeFolder(u"brave"_s);
    folder_.makeFolder(u"chrome"_s);
    watch({chrome, brave});
    const qsizetype watches = watchCount();
    EXPECT_EQ(watches, 2);
    processes_.reset();
    data_.setFolder(chrome, folder_.path(u"not/yet/there/chrome"_s));
    create(test::noBus());
    watch({chrome, brave});
    folder_.makeFolder(u"not"_s);
    QCoreApplication::processEvents();
    folder_.makeFolder(u"not/yet/there/chrome"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(watchCount(), watches);
}

TEST_F(ChromiumProcessesTest, ADataFolderThatIsReplacedIsWatched)
{
    folder_.makeFolder(u"chrome"_s);
    watch({chrome, brave});
    ASSERT_TRUE(QDir().rename(folder_.path(u"chrome"_s), folder_.path(u"old"_s)));
    const auto browser = startChrome();
    QCoreApplication::processEvents();
    browser->kill();
    EXPECT_EQ(told(), QStringList(chrome));
    // The old one is no browser's any more.
    const auto other = start(u"old"_s, u"sockets"_s);
    QCoreApplication::processEvents();
    other->kill();
    EXPECT_EQ(told(), QStringList());
}

TEST_F(ChromiumProcessesTest, LocksThatNoBrowserHoldsAreIgnoredAndLeftAlone)
{
    // A process that runs, but is no browser: the number was given away again.
    const test::StandIn other({u"idle"_s});
    const QString reused = test::hostName + u'-' + QString::number(other.process());
    // The largest number that a process can have is one less.
    const QString stale = test::hostName + u"-4194304"_s;
    const QStringList destinations{
        reused, stale, test::hostName + u"-0"_s, test::hostName + u"--1"_s, u"no lock at all"_s, test::hostName};
    for (const QString &destination : destinations) {
        processes_.reset();
        create(test::noBus());
        plantLock(destination);
        EXPECT_FALSE(isRunning(chrome)) << destination.toStdString();
        watch({chrome, brave});
        EXPECT_FALSE(isRunning(chrome)) << destination.toStdString();
        folder_.write(u"chrome/another file"_s);
        EXPECT_EQ(told(), QStringList()) << destination.toStdString();
        EXPECT_EQ(lockDestination(), destination);
        ASSERT_TRUE(QFile::remove(lock()));
        plantLock(destination);
        QCoreApplication::processEvents();
        EXPECT_FALSE(isRunning(chrome)) << destination.toStdString();
        ASSERT_TRUE(QFile::remove(lock()));
    }
}

TEST_F(ChromiumProcessesTest, ALockOfAnotherMachineIsIgnored)
{
    const QString sockets = folder_.makeFolder(u"sockets"_s);
    const test::StandIn other({u"chromium"_s, folder_.path(u"chrome"_s), u"another-host"_s, sockets});
    watch({chrome, brave});
    EXPECT_FALSE(isRunning(chrome));
    folder_.write(u"chrome/another file"_s);
    EXPECT_EQ(told(), QStringList());
    EXPECT_FALSE(isRunning(chrome));
}

TEST_F(ChromiumProcessesTest, ABrowserWhoseSocketIsOutOfReachIsKnownByItsOpenFiles)
{
    watch({chrome, brave});
    const auto browser = startChrome(u"-"_s);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isRunning(chrome));
    browser->kill();
    EXPECT_FALSE(isRunning(chrome));
    EXPECT_EQ(told(), QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, ALockThatComesBeforeItsSocketIsLookedAtAgain)
{
    folder_.makeFolder(u"chrome"_s);
    watch({chrome, brave});
    const auto browser = start(u"elsewhere"_s, u"sockets"_s);
    plantLock(test::hostName + u'-' + QString::number(browser->process()));
    QCoreApplication::processEvents();
    EXPECT_FALSE(browser->isWatched());
    folder_.link(u"chrome/SingletonSocket"_s, folder_.path(u"sockets/SingletonSocket"_s));
    folder_.write(u"chrome/another file"_s);
    QCoreApplication::processEvents();
    EXPECT_TRUE(browser->isWatched());
    browser->kill();
    EXPECT_EQ(told(), QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, AFlatpakIsFoundThroughItsOwnTemporaryFolder)
{
    const QString id = u"com.google.Chrome"_s;
    const QString data = u".var/app/"_s + id + u"/config/google-chrome"_s;
    data_.setFolder(chrome, folder_.path(data));
    watch({chrome, brave});
    const QString inside = u"/tmp/.org.chromium.stand-in"_s;
    const QString outside = u"runtime/.flatpak/"_s + id + inside;
    const auto browser = start(data, outside);
    QCoreApplication::processEvents();
    ASSERT_TRUE(isRunning(chrome));
    browser->kill();
    EXPECT_EQ(told(), QStringList(chrome));
    // As the sandbox sees it: the socket below its own /tmp, and a number that means another process here.
    const auto sandboxed = start(data, outside);
    const test::StandIn other({u"idle"_s});
    ASSERT_TRUE(QFile::remove(folder_.path(data + u"/SingletonSocket"_s)));
    folder_.link(data + u"/SingletonSocket"_s, inside + u"/SingletonSocket"_s);
    ASSERT_TRUE(QFile::remove(folder_.path(data + u"/SingletonLock"_s)));
    folder_.link(data + u"/SingletonLock"_s, test::hostName + u'-' + QString::number(other.process()));
    processes_.reset();
    create(test::noBus());
    watch({chrome, brave});
    EXPECT_TRUE(isRunning(chrome));
    sandboxed->kill();
    EXPECT_FALSE(isRunning(chrome));
    EXPECT_EQ(told(), QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, WhatAFlatpaksLockNamesIsNotTakenForAProcessHere)
{
    const QString data = u".var/app/com.google.Chrome/config/google-chrome"_s;
    data_.setFolder(chrome, folder_.path(data));
    // It has a file in the folder open, but only a socket could say that it is the one meant.
    const auto other = start(data, u"-"_s);
    watch({chrome, brave});
    EXPECT_FALSE(isRunning(chrome));
    other->kill();
    EXPECT_EQ(told(), QStringList());
}

TEST_F(ChromiumProcessesTest, ABrowserWithTwoDataFoldersRunsUntilTheLastIsUnused)
{
    data_.setFolders(chrome, {{.path = folder_.path(u"chrome"_s)}, {.path = folder_.path(u"other"_s)}});
    const auto first = startChrome();
    watch({chrome, brave});
    const auto second = start(u"other"_s, u"other sockets"_s);
    QCoreApplication::processEvents();
    first->close();
    EXPECT_EQ(told(), QStringList(chrome));
    EXPECT_TRUE(isRunning(chrome));
    second->close();
    EXPECT_EQ(told(), QStringList(chrome));
    EXPECT_FALSE(isRunning(chrome));
}

TEST_F(ChromiumProcessesTest, AllBrowsersThatUseTheFolderAreToldWhateverItsPath)
{
    data_.setFolder(test::edge, folder_.path(u"chrome"_s));
    const QString linked = folder_.link(u"linked"_s, folder_.path(u"chrome"_s));
    const QString opera = u"com.operasoftware.Opera"_s;
    data_.setFolders(opera, {{.path = linked}, {.path = folder_.path(u"chrome"_s)}});
    const auto browser = startChrome();
    watch({chrome, test::edge, opera, brave});
    browser->kill();
    EXPECT_EQ(told(), (QStringList{chrome, test::edge, opera}));
}

TEST_F(ChromiumProcessesTest, UnrelatedFilesAreNoNews)
{
    const auto browser = startChrome();
    watch({chrome, brave});
    for (int number = 0; number < 2000; ++number)
        folder_.write(u"chrome/file %1"_s.arg(number));
    ASSERT_TRUE(QFile::rename(folder_.path(u"chrome/file 0"_s), folder_.path(u"chrome/SingletonLock.new"_s)));
    EXPECT_EQ(told(), QStringList());
    EXPECT_TRUE(isRunning(chrome));
    browser->kill();
    EXPECT_EQ(told(), QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, AStartIsSeenEvenAfterMoreEventsThanTheSystemKeeps)
{
    folder_.makeFolder(u"chrome"_s);
    watch({chrome, brave});
    QFile limit(u"/proc/sys/fs/inotify/max_queued_events"_s);
    ASSERT_TRUE(limit.open(QIODevice::ReadOnly));
    const int count = limit.readAll().trimmed().toInt() + 1;
    // Two names in turn, for equal events in a row count as one.
    const QByteArray paths[2] = {folder_.path(u"chrome/a"_s).toUtf8(), folder_.path(u"chrome/b"_s).toUtf8()};
    for (int number = 0; number < count; ++number) {
        ASSERT_EQ(symlink("x", paths[number % 2].constData()), 0);
        ASSERT_EQ(unlink(paths[number % 2].constData()), 0);
    }
    const auto browser = startChrome();
    QCoreApplication::processEvents();
    browser->kill();
    EXPECT_EQ(told(), QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, WhoIsToldMayEndTheWatch)
{
    data_.setFolder(test::edge, folder_.path(u"chrome"_s));
    const auto browser = startChrome();
    processes_->watch({chrome, test::edge}, [this](const QString &bundleID, bool /*isRunning*/) {
        told_.append(bundleID);
        processes_.reset();
    });
    browser->kill();
    EXPECT_TRUE(isTold(chrome));
    QCoreApplication::processEvents();
    EXPECT_EQ(told_, QStringList(chrome));
}

TEST_F(ChromiumProcessesTest, AFolderThatCanNotBeWatchedIsSaid)
{
    data_.setFolder(test::chrome, folder_.path(QString(300, u'x')));
    watch({test::chrome});
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Profiles] error: <private> can't be watched: File name too long"_s));
}

TEST_F(ChromiumProcessesTest, EndedProcessesLeaveNothingOpen)
{
    watch({chrome, brave});
    const auto openFiles = [] { return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size(); };
    EXPECT_EQ(told(), QStringList());
    const qsizetype before = openFiles();
    for (int time = 0; time < 5; ++time) {
        startChrome()->close();
        EXPECT_EQ(told_, QStringList());
        const auto browser = startChrome();
        QCoreApplication::processEvents();
        browser->close();
        EXPECT_EQ(told(), QStringList(chrome));
    }
    EXPECT_EQ(openFiles(), before);
}

} // namespace
} // namespace vantrel
