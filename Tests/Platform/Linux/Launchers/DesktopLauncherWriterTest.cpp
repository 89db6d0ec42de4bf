#include "Platform/Linux/Launchers/DesktopLauncherWriter.h"

#include "Tests/Contract/LauncherWriterContract.h"
#include "Tests/Platform/Linux/ScopedVariable.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "VantrelKit/LauncherBundle.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class DesktopSystem {
public:
    DesktopSystem() { root_.makeFolder(u"Desktop"_s); }

    LauncherWriter &writer() { return writer_; }
    test::FailingFileSystem &files() { return files_; }
    QString root() { return root_.path(); }
    QString folder() { return root_.path(u"Desktop"_s); }

private:
    test::TemporaryFolder root_;
    test::FailingFileSystem files_;
    DesktopLauncherWriter writer_{files_, root_.path(u"share"_s), u"/opt/a b/vantrel"_s};
};

class DesktopLauncherWriterTest : public testing::Test {
protected:
    [[nodiscard]] QString write(const Launcher &launcher, const std::optional<QString> &folder = std::nullopt)
    {
        LauncherWriter &writer = system_.writer();
        const QString place = writer.placeIn(folder, launcher.profileID, launcher.title);
        const auto made = QCoro::waitFor(writer.write(launcher, place));
        EXPECT_TRUE(made) << made.error().message.toStdString();
        return made ? made->toLocalFile() : QString();
    }

    test::EventProgram program_;
    DesktopSystem system_;
};

QString value(const QString &entry, const QString &key)
{
    QFile file(entry);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(key + u'='))
            return line.sliced(key.size() + 1);
    }
    return {};
}

TEST_F(DesktopLauncherWriterTest, TheEntryIsNamedByTheProfileAndCanBeExecuted)
{
    const Launcher launcher = test::sampleLauncher(u"Work"_s);
    const QString digits = LauncherBundle::digits(launcher.profileID);
    for (const auto &folder : {std::optional<QString>(), std::optional(system_.folder())}) {
        const QString entry = write(launcher, folder);
        const QString where = folder.value_or(system_.root() + "/share/applications"_L1);
        EXPECT_EQ(entry, where + u"/vantrel-"_s + digits + u".desktop"_s);
        EXPECT_TRUE(QFileInfo(entry).isExecutable());
        EXPECT_TRUE(QFileInfo(entry).permission(QFile::ReadOther));
    }
}

TEST_F(DesktopLauncherWriterTest, TheIconHasAllSizesBelowTheEntrysIconName)
{
    const Launcher launcher = test::sampleLauncher(u"Work"_s);
    const QString icon = value(write(launcher), u"Icon"_s);
    EXPECT_TRUE(icon.startsWith("vantrel-"_L1 + LauncherBundle::digits(launcher.profileID) + u'-'));
    for (const int size : {16, 32, 48, 64, 128, 256, 512}) {
        const QString path = u"%1/share/icons/hicolor/%2x%2/apps/%3.png"_s.arg(system_.root()).arg(size).arg(icon);
        EXPECT_EQ(QImage(path).size(), QSize(size, size)) << path.toStdString();
        EXPECT_EQ(QImage(path).pixelColor(0, 0), QColor(Qt::blue));
    }
}

TEST_F(DesktopLauncherWriterTest, AnotherPictureGetsAnotherNameForDesktopsRememberWhatTheyFound)
{
    const QString first = value(write(test::sampleLauncher(u"Work"_s)), u"Icon"_s);
    EXPECT_EQ(value(write(test::sampleLauncher(u"Renamed"_s)), u"Icon"_s), first);
    const Launcher red = test::sampleLauncher(u"Work"_s, test::sampleLauncher({}).profileID, Qt::red);
    EXPECT_NE(value(write(red), u"Icon"_s), first);
    EXPECT_NE(value(write(test::sampleLauncher(u"Work"_s), system_.folder()), u"Icon"_s), first);
}

TEST_F(DesktopLauncherWriterTest, ItOpensTheLinkAndOffersThePrivateWindow)
{
    Launcher launcher = test::sampleLauncher(u"Work"_s);
    QString entry = write(launcher);
    EXPECT_EQ(value(entry, u"Exec"_s),
              u"\"/opt/a b/vantrel\" open --alert "
              "\"vantrel://?browserBundleIdentifier=b&profileName=Work&profile=b/chromium:1\" %U"_s);
    EXPECT_EQ(value(entry, u"Actions"_s), QString());
    launcher.privateWindow = Launcher::Action{u"Incognito Window"_s, {u"b"_s, {}, u"b/private"_s, {}}};
    entry = write(launcher);
    EXPECT_EQ(value(entry, u"Actions"_s), u"private;"_s);
    QFile file(entry);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().endsWith(
        "\n[Desktop Action private]\nName=Incognito Window\nExec=\"/opt/a b/vantrel\" open --alert "
        "\"vantrel://?browserBundleIdentifier=b&profileName=&profile=b/private\"\n"));
}

TEST_F(DesktopLauncherWriterTest, AForeignEntrysIconIsLeftAlone)
{
    const QString place = write(test::sampleLauncher(u"Work"_s));
    QFile entry(place);
    for (const QByteArray &icon : {QByteArray("../../../../precious"), QByteArray("browser"), QByteArray()}) {
        ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
        entry.write("[Desktop Entry]\nIcon=" + icon + "\n");
        entry.close();
        std::ignore = write(test::sampleLauncher(u"Work"_s));
        for (const QString &step : system_.files().steps())
            EXPECT_FALSE(step.startsWith("remove "_L1)) << step.toStdString();
    }
}

TEST_F(DesktopLauncherWriterTest, ThePanelAsksForAFolder)
{
    const SavePanel::Panel panel = system_.writer().panel(u"Chrome – Work"_s);
    EXPECT_EQ(panel, (SavePanel::Panel{.title = u"Create Launcher App"_s,
                                       .message = u"Open “Chrome – Work” from the applications menu, the dock or the "
                                                  "desktop. Links dropped on it open in the profile."_s,
                                       .confirmButton = u"Create"_s,
                                       .folder = system_.root() + u"/share/applications"_s,
                                       .fileName = {}}));
}

/// Stand-ins for the programs that keep caches, which only note how they were called.
class CachePrograms {
public:
    CachePrograms()
    {
        for (const QString &name : {u"update-desktop-database"_s, u"gtk-update-icon-cache"_s})
            folder_.writeScript(u"bin/"_s + name, "echo \"${0##*/} $*\" >> '" + folder_.path().toUtf8() + "/calls'\n");
        folder_.write(u"calls"_s);
    }
    [[nodiscard]] QByteArray calls() const { return folder_.read(u"calls"_s); }
    [[nodiscard]] QByteArray path() const { return folder_.path(u"bin"_s).toUtf8(); }

private:
    test::TemporaryFolder folder_;
};

TEST_F(DesktopLauncherWriterTest, CachesAreBroughtUpToDateWhereTheyAreAndNoneIsMade)
{
    const CachePrograms programs;
    const test::ScopedVariable path("PATH", programs.path() + ":/usr/bin:/bin");
    const QString entry = write(test::sampleLauncher(u"Work"_s));
    EXPECT_EQ(programs.calls(), "");
    const QString share = system_.root() + "/share"_L1;
    for (const QString &cache : {u"/applications/mimeinfo.cache"_s, u"/icons/hicolor/icon-theme.cache"_s}) {
        QFile file(share + cache);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    std::ignore = write(test::sampleLauncher(u"Work"_s));
    const QByteArray expected =
        u"update-desktop-database --quiet %1/applications\n"
        "gtk-update-icon-cache --quiet --force --ignore-theme-index %1/icons/hicolor\n"_s.arg(share)
            .toUtf8();
    EXPECT_EQ(programs.calls(), expected);
    EXPECT_TRUE(QCoro::waitFor(system_.writer().remove(test::sampleLauncher({}).profileID, entry)));
    EXPECT_EQ(programs.calls(), expected + expected);
}

TEST_F(DesktopLauncherWriterTest, WithoutTheProgramsForCachesAllIsWell)
{
    const test::ScopedVariable path("PATH", "/nonexistent");
    const QString entry = write(test::sampleLauncher(u"Work"_s));
    QFile cache(QFileInfo(entry).path() + "/mimeinfo.cache"_L1);
    ASSERT_TRUE(cache.open(QIODevice::WriteOnly));
    EXPECT_FALSE(write(test::sampleLauncher(u"Work"_s)).isEmpty());
}

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Desktop, LauncherWriterContract, DesktopSystem);

} // namespace test
} // namespace vantrel
