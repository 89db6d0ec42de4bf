#include "Platform/Linux/DesktopEntries.h"

#include "Tests/Platform/Linux/PlantedHome.h"
#include "Vantrel/SideBySide.h"

#include <QFile>

#include <gtest/gtest.h>

#include <atomic>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class DesktopEntriesTest : public testing::Test {
protected:
    QString write(const QByteArray &content) const { return home_.write(u"browser.desktop"_s, content); }

    [[nodiscard]] QString name(const QString &path)
    {
        const auto entry = entries_.read(path).entry;
        return entry ? entry->name : u"no entry"_s;
    }

    test::PlantedHome home_;
    DesktopEntries entries_;
};

TEST_F(DesktopEntriesTest, GiveWhatTheFileGives)
{
    for (const QByteArray &content :
         {test::desktopEntry(u"/bin/sh %U"_s, "X-Flatpak=a.b.c\nIcon=x\n"),
          test::desktopEntry(u"/bin/sh"_s, "Hidden=true\n"), test::desktopEntry(u"/no/such/program"_s),
          QByteArray("no entry"), QByteArray()}) {
        const QString path = write(content);
        const DesktopEntryFile expected = DesktopEntryFile::read(path);
        for (int time = 0; time < 2; ++time) {
            const DesktopEntryFile file = entries_.read(path);
            EXPECT_EQ(file.entry, expected.entry) << content.toStdString();
            EXPECT_EQ(file.isHidden, expected.isHidden) << content.toStdString();
        }
    }
}

TEST_F(DesktopEntriesTest, FollowTheFile)
{
    EXPECT_EQ(name(home_.path(u"browser.desktop"_s)), u"no entry"_s);
    const QString path = write(test::desktopEntry(u"/bin/sh"_s, "Name=One\n"));
    EXPECT_EQ(name(path), u"One"_s);
    write(test::desktopEntry(u"/bin/sh"_s, "Name=Three\n"));
    EXPECT_EQ(name(path), u"Three"_s);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(name(path), u"no entry"_s);
    write(test::desktopEntry(u"/bin/sh"_s, "Name=Three\n"));
    EXPECT_EQ(name(path), u"Three"_s);
}

TEST_F(DesktopEntriesTest, TakeAFileOfTheSameLengthForAnotherOne)
{
    const QString path = write(test::desktopEntry(u"/bin/sh"_s, "Name=One\n"));
    EXPECT_EQ(name(path), u"One"_s);
    const QString other = home_.write(u"other"_s, test::desktopEntry(u"/bin/sh"_s, "Name=Two\n"));
    ASSERT_EQ(rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()), 0);
    EXPECT_EQ(name(path), u"Two"_s);
}

TEST_F(DesktopEntriesTest, LookForTheProgramEachTime)
{
    const QString program = home_.installProgram(u"browser"_s);
    const QString path = write(test::desktopEntry(program, "Name=One\n"));
    EXPECT_EQ(name(path), u"One"_s);
    ASSERT_TRUE(QFile::remove(program));
    EXPECT_EQ(name(path), u"no entry"_s);
    home_.installProgram(u"browser"_s);
    EXPECT_EQ(name(path), u"One"_s);
}

TEST_F(DesktopEntriesTest, AreForAnyThread)
{
    QStringList paths;
    for (int number = 0; number < 8; ++number)
        paths.append(home_.write(u"%1.desktop"_s.arg(number),
                                 test::desktopEntry(u"/bin/sh"_s, "Name=" + QByteArray::number(number) + '\n')));
    std::atomic<int> right = 0;
    sideBySide(400, [&](size_t turn) {
        const auto number = static_cast<qsizetype>(turn % 8);
        const auto entry = entries_.read(paths[number]).entry;
        right += entry && entry->name == QString::number(number) ? 1 : 0;
    });
    EXPECT_EQ(right, 400);
}

} // namespace
} // namespace vantrel
