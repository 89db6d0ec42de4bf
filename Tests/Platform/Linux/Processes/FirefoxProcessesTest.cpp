#include "Platform/Linux/Processes/FirefoxBusName.h"
#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/Processes/ProcessesFixture.h"

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::brave;
using test::firefox;

QString busName(const QString &path, const QString &start = u"org.mozilla.firefox"_s)
{
    return start + u'.' + QString::fromLatin1(path.toUtf8().toBase64()).replace(QRegularExpression(u"[+/=]"_s), u"_"_s);
}

class FirefoxProcessesTest : public test::ProcessesFixture {
protected:
    FirefoxProcessesTest()
    {
        data_.setFolder(firefox, folder_.path(u"firefox"_s));
        connect();
    }
    ~FirefoxProcessesTest() override
    {
        processes_.reset();
        QDBusConnection::disconnectFromBus(u"private"_s);
    }
    Q_DISABLE_COPY_MOVE(FirefoxProcessesTest)

    void connect()
    {
        connection_ = QDBusConnection::connectToBus(bus_.address(), u"private"_s);
        create(connection_);
    }
    void doWithoutBus() { create(test::noBus()); }

    /// With its lock, and with the name of its path unless told otherwise.
    [[nodiscard]] std::unique_ptr<test::StandIn> startFirefox(const QString &profile, const QString &name = {}) const
    {
        const QString path = folder_.path(profile);
        return std::make_unique<test::StandIn>(QStringList{u"firefox"_s, path, name.isEmpty() ? busName(path) : name},
                                               bus_.address());
    }

    /// The name without a lock, as when the file system knows no locks.
    [[nodiscard]] std::unique_ptr<test::StandIn> startNamed(const QString &name) const
    {
        return std::make_unique<test::StandIn>(QStringList{u"named"_s, name}, bus_.address());
    }

    /// Waits until the watch has found the process.
    [[nodiscard]] static bool isNoticed(const std::unique_ptr<test::StandIn> &browser)
    {
        return test::waitUntil([&browser] { return browser->isWatched(); });
    }

    test::PrivateBus bus_;
    QDBusConnection connection_ = test::noBus();
};

TEST_F(FirefoxProcessesTest, AnEndIsToldOnceWhetherTheStartWasSeenOrNot)
{
    const auto before = startFirefox(u"firefox/a.default"_s);
    watch({firefox, brave});
    EXPECT_TRUE(isRunning(firefox));
    before->close();
    EXPECT_EQ(told(), QStringList(firefox));
    EXPECT_FALSE(isRunning(firefox));
    // A profile that is new as well.
    const auto after = startFirefox(u"firefox/b.work"_s);
    EXPECT_TRUE(isNoticed(after));
    after->kill();
    EXPECT_EQ(told(), QStringList(firefox));
    EXPECT_FALSE(isRunning(firefox));
}

TEST_F(FirefoxProcessesTest, ANameAloneIsEnough)
{
    folder_.makeFolder(u"firefox/a"_s);
    const QString name = busName(folder_.path(u"firefox/a"_s));
    const auto before = startNamed(name);
    watch({firefox, brave});
    EXPECT_FALSE(isRunning(firefox)) << "Found without the bus: not what this test is about.";
    EXPECT_TRUE(isNoticed(before));
    before->close();
    EXPECT_FALSE(isRunning(firefox));
    EXPECT_EQ(told(), QStringList(firefox));
    const auto after = startNamed(name);
    EXPECT_TRUE(isNoticed(after));
    after->kill();
    EXPECT_FALSE(isRunning(firefox));
    EXPECT_EQ(told(), QStringList(firefox));
}

TEST_F(FirefoxProcessesTest, NamesOfOtherProfilesAndProgramsAreNoNews)
{
    folder_.makeFolder(u"firefox/a"_s);
    const QString path = folder_.path(u"firefox/a"_s);
    const QStringList names{busName(folder_.path(u"elsewhere/a"_s)), busName(folder_.path(u"firefox/b"_s)),
                            busName(folder_.path(u"firefox"_s)), u"org.mozilla.firefox"_s,
                            busName(path, u"org.example.firefox"_s)};
    std::vector<std::unique_ptr<test::StandIn>> others;
    others.push_back(startNamed(names.first()));
    watch({firefox, brave});
    for (const QString &name : names.sliced(1))
        others.push_back(startNamed(name));
    const auto own = startNamed(busName(path));
    // News of the others came before.
    EXPECT_TRUE(isNoticed(own));
    for (const auto &other : others) {
        EXPECT_FALSE(other->isWatched());
        other->kill();
    }
    EXPECT_EQ(told(), QStringList());
    own->kill();
    EXPECT_EQ(told(), QStringList(firefox));
}

TEST_F(FirefoxProcessesTest, ZenHasNamesOfItsOwn)
{
    data_.setFolder(test::zen, folder_.path(u"zen"_s));
    folder_.makeFolder(u"zen/a"_s);
    watch({test::zen, firefox, brave});
    for (const QString &start : {u"org.mozilla.zen"_s, u"app.zen_browser.zen"_s}) {
        const auto browser = startNamed(busName(folder_.path(u"zen/a"_s), start));
        EXPECT_TRUE(isNoticed(browser)) << start.toStdString();
        browser->kill();
        EXPECT_EQ(told(), QStringList(test::zen));
    }
}

TEST_F(FirefoxProcessesTest, AProfileElsewhereBelongsToTheBrowserThatListsIt)
{
    const QByteArray path = folder_.makeFolder(u"else where/profile"_s).toUtf8();
    folder_.write(u"firefox/profiles.ini"_s, "[Profile0]\nName=a\nIsRelative=0\nPath=" + path + '\n');
    watch({firefox, brave});
    const auto browser = startFirefox(u"else where/profile"_s);
    EXPECT_TRUE(isNoticed(browser));
    browser->kill();
    EXPECT_EQ(told(), QStringList(firefox));
}

TEST_F(FirefoxProcessesTest, AProfileMayBeKnownByAnotherPath)
{
    const QString sandboxed = u".var/app/org.mozilla.firefox/.mozilla/firefox"_s;
    const QString linked = folder_.link(u"linked"_s, folder_.path(u"firefox"_s));
    data_.setFolders(firefox, {{.path = linked}, {.path = folder_.path(sandboxed)}});
    folder_.makeFolder(u"firefox/a"_s);
    folder_.makeFolder(sandboxed + u"/b"_s);
    watch({firefox, brave});
    const QStringList paths{u"firefox/a"_s, u"linked/a"_s, u".mozilla/firefox/b"_s, sandboxed + u"/b"_s};
    for (const QString &path : paths) {
        const auto browser = startNamed(busName(folder_.path(path)));
        EXPECT_TRUE(isNoticed(browser)) << path.toStdString();
        browser->kill();
        EXPECT_EQ(told(), QStringList(firefox));
    }
}

TEST_F(FirefoxProcessesTest, EditionsThatShareAFolderAreAllToldOnce)
{
    const QString nightly = u"org.mozilla.nightly"_s;
    data_.setFolders(nightly, {{.path = folder_.path(u"nightly"_s)}, {.path = folder_.path(u"firefox"_s)}});
    const auto browser = startFirefox(u"firefox/a"_s);
    watch({firefox, nightly, brave});
    EXPECT_TRUE(isRunning(nightly));
    browser->kill();
    EXPECT_EQ(told(), (QStringList{firefox, nightly}));
}

TEST_F(FirefoxProcessesTest, ABrowserWithTwoProfilesRunsUntilTheLastIsClosed)
{
    for (const bool hasBus : {true, false}) {
        processes_.reset();
        hasBus ? connect() : doWithoutBus();
        const auto first = startFirefox(u"firefox/a"_s);
        watch({firefox, brave});
        const auto second = startFirefox(u"firefox/b"_s);
        EXPECT_TRUE(isNoticed(second));
        first->close();
        EXPECT_EQ(told(), QStringList(firefox));
        EXPECT_TRUE(isRunning(firefox));
        second->close();
        EXPECT_EQ(told(), QStringList(firefox));
        EXPECT_FALSE(isRunning(firefox));
    }
}

TEST_F(FirefoxProcessesTest, WithoutABusStartsAreSeenInTheFolders)
{
    doWithoutBus();
    watch({firefox, brave});
    // The data folder and the profile are made, then a second profile, then both are used again.
    for (const QString &profile : {u"firefox/a"_s, u"firefox/b"_s, u"firefox/a"_s, u"firefox/b"_s}) {
        const auto browser = startFirefox(profile, u"-"_s);
        EXPECT_TRUE(isNoticed(browser)) << profile.toStdString();
        browser->kill();
        EXPECT_EQ(told(), QStringList(firefox)) << profile.toStdString();
    }
    for (int number = 0; number < 100; ++number)
        folder_.write(u"firefox/a/file %1"_s.arg(number));
    EXPECT_EQ(told(), QStringList());
}

TEST_F(FirefoxProcessesTest, ABusThatGoesAwayLeavesRunningBrowsersAndTheFolders)
{
    const auto locked = startFirefox(u"firefox/a"_s);
    folder_.makeFolder(u"firefox/b"_s);
    const auto named = startNamed(busName(folder_.path(u"firefox/b"_s)));
    watch({firefox, brave});
    EXPECT_TRUE(isNoticed(named));
    bus_.stop();
    ASSERT_TRUE(test::waitUntil([this] { return !connection_.isConnected(); }));
    EXPECT_EQ(told(), QStringList());
    locked->kill();
    EXPECT_EQ(told(), QStringList(firefox));
    EXPECT_TRUE(isRunning(firefox)) << "The process behind the name is forgotten.";
    named->kill();
    EXPECT_EQ(told(), QStringList(firefox));
    const auto later = startFirefox(u"firefox/c"_s, u"-"_s);
    EXPECT_TRUE(isNoticed(later));
    later->kill();
    EXPECT_EQ(told(), QStringList(firefox));
}

TEST_F(FirefoxProcessesTest, ABusThatDoesNotAnswerIsNotWaitedFor)
{
    const auto browser = startFirefox(u"firefox/a"_s);
    folder_.makeFolder(u"firefox/b"_s);
    const auto named = startNamed(busName(folder_.path(u"firefox/b"_s)));
    bus_.pause();
    QElapsedTimer clock;
    clock.start();
    watch({firefox, brave});
    EXPECT_TRUE(isRunning(firefox));
    browser->kill();
    EXPECT_EQ(told(), QStringList(firefox));
    EXPECT_FALSE(isRunning(firefox));
    EXPECT_LT(clock.elapsed(), 10000);
    bus_.resume();
    EXPECT_TRUE(isNoticed(named));
}

TEST_F(FirefoxProcessesTest, AnObjectThatIsGoneTakesNoAnswers)
{
    folder_.makeFolder(u"firefox/b"_s);
    const auto named = startNamed(busName(folder_.path(u"firefox/b"_s)));
    watch({firefox, brave});
    processes_.reset();
    create(connection_);
    watch({firefox, brave});
    EXPECT_TRUE(isNoticed(named));
    named->kill();
    EXPECT_EQ(told(), QStringList(firefox));
}

} // namespace
} // namespace vantrel
