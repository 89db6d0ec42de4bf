#include "Vantrel/Launchers/BundleLauncherWriter.h"

#include "Platform/CodesignProgram.h"
#include "Tests/Contract/LauncherWriterContract.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "VantrelKit/LauncherBundle.h"
#include "VantrelKit/PropertyList.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A machine with an app, a signing program that only takes notes, and a temporary folder outside of what is looked at.
class BundleSystem {
public:
    BundleSystem()
    {
        outside_.write(u"app/LauncherStub"_s, "a program");
        signWith("exit 0\n");
        root_.makeFolder(u"Desktop"_s);
    }

    LauncherWriter &writer() { return writer_; }
    test::FailingFileSystem &files() { return files_; }
    QString root() { return root_.path(); }
    QString folder() { return root_.path(u"Desktop"_s); }

    [[nodiscard]] const test::TemporaryFolder &outside() const { return outside_; }
    [[nodiscard]] QStringList workingFolders() const
    {
        return QDir(outside_.path(u"tmp"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    /// The body of the script that stands in for codesign, which notes its arguments first.
    void signWith(const QByteArray &body) const
    {
        const QByteArray notes = outside_.path(u"arguments"_s).toUtf8();
        outside_.writeScript(u"codesign"_s, "printf '%s\\n' \"$@\" > '" + notes + "'\n" + body);
    }

private:
    test::TemporaryFolder outside_;
    test::TemporaryFolder root_;
    test::FailingFileSystem files_;
    CodesignProgram signer_{outside_.path(u"codesign"_s)};
    BundleLauncherWriter writer_{{.files = files_,
                                  .signer = signer_,
                                  .stub = outside_.path(u"app/LauncherStub"_s),
                                  .home = root_.path(u"home"_s),
                                  .temporaryFolder = outside_.path(u"tmp"_s),
                                  .version = u"1.2.3"_s}};
};

class BundleLauncherWriterTest : public testing::Test {
protected:
    [[nodiscard]] std::expected<QUrl, PlatformError> write(const Launcher &launcher)
    {
        return QCoro::waitFor(system_.writer().write(launcher, place(launcher.title)));
    }
    [[nodiscard]] QString place(const QString &title)
    {
        return system_.folder() + u'/' + LauncherBundle::fileName(title);
    }
    /// Why a launcher isn't made.
    [[nodiscard]] QString failure()
    {
        const auto made = write(test::sampleLauncher(u"Work"_s));
        return made ? u"made"_s : made.error().message;
    }

    test::EventProgram program_;
    BundleSystem system_;
};

TEST_F(BundleLauncherWriterTest, TheBundleHasAProgramAPropertyListAndAnIcon)
{
    const Launcher launcher = test::sampleLauncher(u"Chrome – Work & Play"_s);
    const auto made = write(launcher);
    ASSERT_TRUE(made) << made.error().message.toStdString();
    const auto content = test::contentOf(made->toLocalFile());
    EXPECT_EQ(content.keys(), (QStringList{u"Contents/Info.plist"_s, u"Contents/MacOS/Launcher"_s,
                                           u"Contents/Resources/AppIcon.icns"_s}));
    EXPECT_EQ(content[u"Contents/MacOS/Launcher"_s], "a program");
    EXPECT_TRUE(QFileInfo(made->toLocalFile() + "/Contents/MacOS/Launcher"_L1).isExecutable());
    EXPECT_EQ(content[u"Contents/Info.plist"_s], propertyListXML(LauncherBundle::infoPlist(
                                                     launcher.title, launcher.profileID, launcher.link, u"1.2.3"_s)));
    EXPECT_EQ(content[u"Contents/Resources/AppIcon.icns"_s].first(4), "icns");
}

TEST_F(BundleLauncherWriterTest, TheStepsAreTakenInTheirOrderAndTheWorkingFolderGoes)
{
    system_.files().failAt(0);
    ASSERT_TRUE(write(test::sampleLauncher(u"Work"_s)));
    const QStringList steps = system_.files().steps();
    ASSERT_EQ(steps.size(), 8);
    EXPECT_EQ(steps.first(7),
              (QStringList{u"makeFolder MacOS"_s, u"makeFolder Resources"_s, u"copyProgram Launcher"_s,
                           u"write Info.plist"_s, u"write AppIcon.icns"_s,
                           u"removeAttribute com.apple.quarantine Launcher"_s, u"replaceItem Work.app"_s}));
    EXPECT_FALSE(QUuid::fromString(steps.last().section(u' ', 1)).isNull()) << steps.last().toStdString();
    EXPECT_TRUE(system_.workingFolders().isEmpty());
}

TEST_F(BundleLauncherWriterTest, TheFinishedBundleIsSignedByItsPlainPath)
{
    const QString title = u"a b%20c – \"$(id)\""_s;
    // The program sees all that is in the bundle.
    system_.signWith("test -x \"$4/Contents/MacOS/Launcher\" && test -s \"$4/Contents/Resources/AppIcon.icns\" && "
                     "test -s \"$4/Contents/Info.plist\"\n");
    const auto made = write(test::sampleLauncher(title));
    ASSERT_TRUE(made) << made.error().message.toStdString();
    const QStringList arguments =
        QString::fromUtf8(system_.outside().read(u"arguments"_s)).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(arguments.size(), 4);
    EXPECT_EQ(arguments.first(3), (QStringList{u"--force"_s, u"--sign"_s, u"-"_s}));
    EXPECT_TRUE(arguments.last().startsWith(system_.outside().path(u"tmp/"_s)));
    EXPECT_TRUE(arguments.last().endsWith(u'/' + title + u".app"_s));
}

TEST_F(BundleLauncherWriterTest, ARefusedSignatureIsToldAndTheEarlierLauncherStays)
{
    ASSERT_TRUE(write(test::sampleLauncher(u"Work"_s)));
    const auto before = test::contentOf(system_.root());
    const Launcher other = test::sampleLauncher(u"Work"_s, u"b/chromium:2"_s, Qt::red);
    for (const auto &[body, message] :
         {std::pair("echo 'no identity' >&2; exit 1\n", u"no identity"_s),
          std::pair("exit 3\n", u"%1 ended with the status 3."_s), std::pair("kill -9 $$\n", u"%1 crashed."_s)}) {
        system_.signWith(body);
        const auto made = write(other);
        ASSERT_FALSE(made);
        EXPECT_EQ(made.error().message,
                  message.contains(u'%') ? message.arg(system_.outside().path(u"codesign"_s)) : message);
        EXPECT_EQ(test::contentOf(system_.root()), before);
    }
    // What was built is left there to be looked at.
    EXPECT_EQ(system_.workingFolders().size(), 3);
}

TEST_F(BundleLauncherWriterTest, AMissingSigningProgramIsTold)
{
    EXPECT_TRUE(QFile::remove(system_.outside().path(u"codesign"_s)));
    EXPECT_EQ(failure(), system_.outside().path(u"codesign"_s) + u" can't be started: No such file or directory."_s);
}

TEST_F(BundleLauncherWriterTest, AnAppWithoutTheProgramIsToBeDownloadedAgain)
{
    EXPECT_TRUE(QFile::remove(system_.outside().path(u"app/LauncherStub"_s)));
    EXPECT_EQ(failure(), u"Vantrel is missing a part that it needs to make launcher apps. Download Vantrel again from "
                         "https://kestrune.app/vantrel"_s);
    EXPECT_TRUE(system_.workingFolders().isEmpty());
}

TEST_F(BundleLauncherWriterTest, AFolderThatIsClosedIsTold)
{
    EXPECT_TRUE(QDir(system_.folder()).removeRecursively());
    EXPECT_EQ(failure(), place(u"Work"_s) + u": No such file or directory."_s);
}

TEST_F(BundleLauncherWriterTest, WhateverIsAtThePlaceIsReplaced)
{
    const QString place = this->place(u"Work"_s);
    ASSERT_TRUE(QFile::link(system_.outside().path(u"app"_s), place));
    ASSERT_TRUE(write(test::sampleLauncher(u"Work"_s)));
    EXPECT_FALSE(QFileInfo(place).isSymLink());
    EXPECT_TRUE(QFileInfo::exists(system_.outside().path(u"app/LauncherStub"_s)));
}

TEST_F(BundleLauncherWriterTest, OddTitlesMakeBundlesToo)
{
    for (const QString &title : {u"Work/Home: Chrome"_s, u"..hidden"_s, u"   "_s, u"'\"`$(x)\\"_s, u"line\nbreak"_s,
                                 QString(300, u'é'), u"עבודה 👩‍💻"_s}) {
        const auto made = write(test::sampleLauncher(title));
        ASSERT_TRUE(made) << made.error().message.toStdString();
        EXPECT_EQ(made->toLocalFile(), place(title));
        EXPECT_EQ(test::contentOf(made->toLocalFile()).size(), 3);
    }
}

TEST_F(BundleLauncherWriterTest, OnlyALauncherOfTheProfileIsRemoved)
{
    ASSERT_TRUE(write(test::sampleLauncher(u"Work"_s)));
    const auto before = test::contentOf(system_.root());
    EXPECT_FALSE(QCoro::waitFor(system_.writer().remove(u"b/chromium:2"_s, place(u"Work"_s))));
    EXPECT_EQ(test::contentOf(system_.root()), before);
}

TEST_F(BundleLauncherWriterTest, ThePanelProposesANameInTheUsersApplications)
{
    EXPECT_EQ(system_.writer().panel(u"Chrome – A/B"_s),
              (SavePanel::Panel{.title = u"Create Launcher App"_s,
                                .message = u"Open “Chrome – A/B” from Spotlight, Launchpad, the Dock or Finder. Links "
                                           "dropped on it open in the profile."_s,
                                .confirmButton = u"Create"_s,
                                .folder = system_.root() + u"/home/Applications"_s,
                                .fileName = u"Chrome – A-B.app"_s}));
}

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Bundle, LauncherWriterContract, BundleSystem);

} // namespace test
} // namespace vantrel
