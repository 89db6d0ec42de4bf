#include "Platform/Linux/AutostartEntry.h"

#include "Platform/Linux/ExecLine.h"
#include "Tests/Contract/LoginItemContract.h"
#include "Tests/Contract/LoginItemRefusalContract.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr const char *everybodysEntry = "[Desktop Entry]\nType=Application\nName=Vantrel\nExec=vantrel\n";

class AutostartEntryTest : public testing::Test {
protected:
    [[nodiscard]] AutostartEntry entry(const QString &program = u"/usr/bin/vantrel"_s) const
    {
        return {{.own = own_, .everybodys = {folder_.path(u"admin.desktop"_s), folder_.path(u"system.desktop"_s)}},
                program};
    }

    [[nodiscard]] QByteArray text() const { return folder_.read(u"config/autostart/vantrel.desktop"_s); }

    test::TemporaryFolder folder_;
    QString own_ = folder_.path(u"config/autostart/vantrel.desktop"_s);
};

TEST_F(AutostartEntryTest, IsTheUsersInTheConfigurationFolder)
{
    QProcessEnvironment variables;
    variables.insert(u"HOME"_s, u"/home/ann"_s);
    EXPECT_EQ(AutostartEntry::Places::from(variables).own,
              u"/home/ann/.config/autostart/app.kestrune.Vantrel.desktop"_s);
    EXPECT_EQ(AutostartEntry::Places::from(variables).everybodys,
              QStringList{u"/etc/xdg/autostart/app.kestrune.Vantrel.desktop"_s});
    variables.insert(u"XDG_CONFIG_HOME"_s, u"/config"_s);
    variables.insert(u"XDG_CONFIG_DIRS"_s, u"/a:relative:/b"_s);
    EXPECT_EQ(AutostartEntry::Places::from(variables).own, u"/config/autostart/app.kestrune.Vantrel.desktop"_s);
    EXPECT_EQ(
        AutostartEntry::Places::from(variables).everybodys,
        (QStringList{u"/a/autostart/app.kestrune.Vantrel.desktop"_s, u"/b/autostart/app.kestrune.Vantrel.desktop"_s}));
}

TEST_F(AutostartEntryTest, IsWrittenAndTakenAway)
{
    AutostartEntry item = entry();
    EXPECT_FALSE(item.isEnabled());
    ASSERT_TRUE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_TRUE(text().contains("\nExec=/usr/bin/vantrel\n")) << text().toStdString();
    ASSERT_TRUE(item.setEnabled(true));
    ASSERT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_FALSE(QFileInfo::exists(own_));
    ASSERT_TRUE(item.setEnabled(false));
}

TEST_F(AutostartEntryTest, IsValidAndNamesAnyProgram)
{
    for (const QString &program : {u"/usr/bin/vantrel"_s, u"/höme of ann/50%/$x \"y\"/vantrel"_s}) {
        ASSERT_TRUE(entry(program).setEnabled(true));
        QProcess check;
        check.start(u"desktop-file-validate"_s, {own_});
        ASSERT_TRUE(check.waitForFinished()) << "desktop-file-validate is in the package desktop-file-utils";
        EXPECT_EQ(check.exitCode(), 0) << check.readAllStandardOutput().toStdString();
        // As desktops read it: the file's escapes, then the words, then the codes.
        QString exec = QString::fromUtf8(text()).section(u"\nExec="_s, 1).section(u'\n', 0, 0);
        exec.replace(u"\\\\"_s, u"\\"_s);
        const QStringList words = execWords(exec).value_or(QStringList());
        EXPECT_EQ(QString(words.value(words.size() - 1)).replace(u"%%"_s, u"%"_s), program);
    }
}

TEST_F(AutostartEntryTest, OthersMayHaveSwitchedItOff)
{
    for (const QByteArray line : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        folder_.write(u"config/autostart/vantrel.desktop"_s, everybodysEntry + line);
        EXPECT_FALSE(entry().isEnabled()) << line.toStdString();
        ASSERT_TRUE(entry().setEnabled(true));
        EXPECT_TRUE(entry().isEnabled()) << line.toStdString();
    }
    folder_.write(u"config/autostart/vantrel.desktop"_s, "no entry at all\xff");
    EXPECT_FALSE(entry().isEnabled());
}

TEST_F(AutostartEntryTest, AnAdministratorsEntryCountsUntilTheUserSaysOtherwise)
{
    folder_.write(u"system.desktop"_s, everybodysEntry);
    AutostartEntry item = entry();
    EXPECT_TRUE(item.isEnabled());
    ASSERT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_TRUE(text().contains("\nHidden=true\n"));
    ASSERT_TRUE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
    // The more important folder comes first.
    ASSERT_TRUE(item.setEnabled(false));
    folder_.write(u"admin.desktop"_s, QByteArray(everybodysEntry) + "Hidden=true\n");
    ASSERT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(QFileInfo::exists(own_));
    EXPECT_FALSE(item.isEnabled());
}

TEST_F(AutostartEntryTest, ARefusalNamesTheFile)
{
    // A file in the folder's place stops administrators too.
    folder_.write(u"config"_s);
    const auto done = entry().setEnabled(true);
    ASSERT_FALSE(done);
    EXPECT_TRUE(done.error().message.contains(folder_.path(u"config"_s))) << done.error().message.toStdString();
    EXPECT_FALSE(entry().isEnabled());
}

/// A desktop that starts what the user's folder says.
class AutostartSystem {
public:
    LoginItem &item() { return item_; }

    [[nodiscard]] bool startsProgram() const
    {
        const QByteArray text = QFileInfo::exists(path_) ? folder_.read(file_) : QByteArray();
        return text.startsWith("[Desktop Entry]\n") && text.contains("\nExec=/usr/bin/vantrel\n") &&
               !text.contains("\nHidden=true\n") && !text.contains("\nX-GNOME-Autostart-enabled=false\n");
    }

    void change(bool isOn)
    {
        folder_.write(file_, "[Desktop Entry]\nType=Application\nName=Vantrel\nExec=/usr/bin/vantrel\n"
                             "X-GNOME-Autostart-enabled=" +
                                 QByteArray(isOn ? "true" : "false") + '\n');
    }

private:
    const QString file_ = u"autostart/vantrel.desktop"_s;
    test::TemporaryFolder folder_;
    QString path_ = folder_.path(file_);
    AutostartEntry item_{{.own = path_, .everybodys = {}}, u"/usr/bin/vantrel"_s};
};

class RefusingAutostartSystem {
public:
    LoginItem &item() { return item_; }

private:
    test::TemporaryFolder folder_;
    /// A file in the folder's place stops administrators too.
    QString own_ = folder_.write(u"config"_s) + u"/vantrel.desktop"_s;
    AutostartEntry item_{{.own = own_, .everybodys = {}}, u"/usr/bin/vantrel"_s};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, LoginItemContract, AutostartSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Linux, LoginItemRefusalContract, RefusingAutostartSystem);

} // namespace test
} // namespace vantrel
