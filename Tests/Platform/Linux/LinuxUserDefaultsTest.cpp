#include "Platform/Linux/LinuxUserDefaults.h"

#include "Tests/Contract/UserDefaultsContract.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class FakeUserDefaultsSystem {
public:
    UserDefaults &defaults() { return defaults_; }
    UserDefaults &ofAnotherProgram() { return defaults_; }

private:
    test::FakeUserDefaults defaults_;
};

/// Both sides have the same file by different paths, for which QSettings keeps what it has read apart as it does in
/// different processes.
class LinuxUserDefaultsSystem {
public:
    UserDefaults &defaults() { return defaults_; }
    UserDefaults &ofAnotherProgram() { return others_; }

private:
    test::TemporaryFolder folder_;
    QString real_ = folder_.makeFolder(u"real"_s);
    QString link_ = folder_.link(u"link"_s, real_);
    LinuxUserDefaults defaults_{real_ + "/new/defaults.ini"_L1};
    LinuxUserDefaults others_{link_ + "/new/defaults.ini"_L1};
};

const QString key = u"KeyboardShortcuts_profile.com.google.Chrome/chromium:Büro"_s;

TEST(LinuxUserDefaults, AreBelowTheConfigurationFolder)
{
    Environment environment;
    environment.configHome = u"/home/me/config"_s;
    EXPECT_EQ(LinuxUserDefaults::defaultPath(environment), u"/home/me/config/app.kestrune.Vantrel/defaults.ini"_s);
}

TEST(LinuxUserDefaults, AreOneFlatListInTheFile)
{
    const test::TemporaryFolder folder;
    LinuxUserDefaults defaults(folder.path(u"defaults.ini"_s));
    EXPECT_FALSE(QFile::exists(folder.path(u"defaults.ini"_s)));
    defaults.setValue(key, u"{\"a\":1,\"b\":2}"_s);
    defaults.setValue(u"flag"_s, false);
    EXPECT_EQ(folder.read(u"defaults.ini"_s),
              "[General]\nKeyboardShortcuts_profile.com.google.Chrome%252Fchromium%3AB%FCro="
              "\"{\\\"a\\\":1,\\\"b\\\":2}\"\nflag=false\n");
}

TEST(LinuxUserDefaults, LastLongerThanTheProgram)
{
    const test::TemporaryFolder folder;
    const QString link = folder.link(u"link"_s, folder.makeFolder(u"real"_s));
    LinuxUserDefaults(folder.path(u"real/defaults.ini"_s)).setValue(key, u"stored"_s);
    EXPECT_EQ(LinuxUserDefaults(link + "/defaults.ini"_L1).value(key), u"stored"_s);
}

TEST(LinuxUserDefaults, ADamagedFileHoldsNothingAndCanBeWritten)
{
    const test::TemporaryFolder folder;
    const QString path = folder.write(u"defaults.ini"_s, QByteArray("\xff\xfe\0[[[\n=\n\"\x80", 12));
    LinuxUserDefaults defaults(path);
    EXPECT_FALSE(defaults.value(key).isValid());
    defaults.setValue(key, u"stored"_s);
    EXPECT_EQ(defaults.value(key), u"stored"_s);
}

TEST(LinuxUserDefaults, ATextWithoutQuotationMarksIsReadAsWell)
{
    const test::TemporaryFolder folder;
    const LinuxUserDefaults defaults(folder.write(u"defaults.ini"_s, "[General]\na=one, two\nb=true\nc=7\n"));
    EXPECT_EQ(defaults.value(u"a"_s), u"one, two"_s);
    EXPECT_EQ(defaults.value(u"b"_s), true);
    EXPECT_EQ(defaults.value(u"c"_s), u"7"_s);
}

TEST(LinuxUserDefaults, WhatCanNotBeWrittenLastsAsLongAsTheProgram)
{
    const test::TemporaryFolder folder;
    folder.write(u"file"_s);
    folder.makeFolder(u"folder.ini"_s);
    for (const QString &path : {folder.path(u"file/defaults.ini"_s), folder.path(u"folder.ini"_s)}) {
        LinuxUserDefaults defaults(path);
        EXPECT_FALSE(defaults.value(key).isValid()) << path.toStdString();
        defaults.setValue(key, u"stored"_s);
        EXPECT_EQ(defaults.value(key), u"stored"_s) << path.toStdString();
        defaults.remove(key);
        EXPECT_FALSE(defaults.value(key).isValid()) << path.toStdString();
    }
}

TEST(LinuxUserDefaults, AFileThatMayOnlyBeReadStaysAsItIs)
{
    const test::TemporaryFolder folder;
    const QString path = folder.write(u"closed/defaults.ini"_s, "[General]\na=stored\n");
    const test::ClosedPath closedFile(path, 0444);
    const test::ClosedPath closedFolder(folder.path(u"closed"_s), 0555);
    const QString answer = test::answerOfUnprivilegedProcess([&path] {
        LinuxUserDefaults defaults(path);
        const QString before = defaults.value(u"a"_s).toString();
        defaults.setValue(u"a"_s, u"changed"_s);
        return QString(before + u", " + defaults.value(u"a"_s).toString());
    });
    EXPECT_EQ(answer, u"stored, changed"_s);
    EXPECT_EQ(folder.read(u"closed/defaults.ini"_s), "[General]\na=stored\n");
}

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, UserDefaultsContract, FakeUserDefaultsSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, UserDefaultsContract, LinuxUserDefaultsSystem);

} // namespace test
} // namespace vantrel
