#include "Platform/Linux/DesktopEntry.h"

#include "Tests/Platform/Linux/PlantedHome.h"
#include "Tests/Platform/Linux/ScopedVariable.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <ostream>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {

void PrintTo(const DesktopEntry &entry, std::ostream *stream)
{
    printDebugForm(QStringList{entry.path, entry.name, entry.exec, entry.icon, entry.workingDirectory, entry.flatpakID,
                               entry.snapName},
                   stream);
}

namespace {

class DesktopEntryTest : public testing::Test {
protected:
    [[nodiscard]] DesktopEntryFile read(const QByteArray &content) const
    {
        return DesktopEntryFile::read(home_.write(u"entry.desktop"_s, content));
    }

    [[nodiscard]] QString name(const QByteArray &keys) const
    {
        const auto entry = read(test::desktopEntry(u"/bin/sh"_s, keys)).entry;
        return entry ? entry->name : u"no entry"_s;
    }

    /// Neither an entry nor hidden; a read that doesn't come to an end fails as well.
    static bool isNothing(const QString &path)
    {
        auto reading = std::async(std::launch::async, [&path] { return DesktopEntryFile::read(path); });
        const bool ends = reading.wait_for(std::chrono::seconds(5)) == std::future_status::ready;
        // Releases a reader that waits for the other end of a pipe.
        if (const int end = ends ? -1 : open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK); end >= 0)
            close(end);
        const DesktopEntryFile file = reading.get();
        return ends && !file.isHidden && !file.entry;
    }

    test::PlantedHome home_;
};

TEST_F(DesktopEntryTest, AnApplicationsEntryIsReadWhole)
{
    const QByteArray keys = "Icon=my-icon\nPath=/opt/my browser\nX-Flatpak=org.example.browser\n"
                            "X-SnapInstanceName=browser\n";
    const DesktopEntryFile file = read(test::desktopEntry(u"/bin/sh \"a b\" %U %%"_s, keys));
    EXPECT_FALSE(file.isHidden);
    const DesktopEntry expected{.path = home_.path(u"entry.desktop"_s),
                                .name = u"Stand-in"_s,
                                .exec = u"/bin/sh \"a b\" %U %%"_s,
                                .icon = u"my-icon"_s,
                                .workingDirectory = u"/opt/my browser"_s,
                                .flatpakID = u"org.example.browser"_s,
                                .snapName = u"browser"_s};
    EXPECT_EQ(file.entry, expected);
}

TEST_F(DesktopEntryTest, WhatIsNotThereIsEmpty)
{
    const auto entry = read(test::desktopEntry(u"/bin/sh"_s)).entry;
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->icon, QString());
    EXPECT_EQ(entry->workingDirectory, QString());
    EXPECT_EQ(entry->flatpakID, QString());
    EXPECT_EQ(entry->snapName, QString());
}

TEST_F(DesktopEntryTest, EscapesOfTheFileAreTakenOffOnce)
{
    const auto entry = read(test::desktopEntry(uR"(/bin/sh "a\\\\b" \s%c)"_s)).entry;
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->exec, uR"(/bin/sh "a\\b"  %c)"_s);
}

TEST_F(DesktopEntryTest, TheNameIsInTheUsersLanguage)
{
    const QByteArray names = "Name[de]=Stellvertreter\nName[pt_BR]=Substituto\nName[pt]=Suplente\n";
    const std::vector<std::pair<QByteArray, QString>> rows{
        {"de", u"Stellvertreter"_s},   {"de_AT.UTF-8", u"Stellvertreter"_s}, {"pt_BR", u"Substituto"_s},
        {"pt_PT", u"Suplente"_s},      {"fr:de", u"Stellvertreter"_s},       {"fr", u"Stand-in"_s},
        {"de:pt", u"Stellvertreter"_s}};
    for (const auto &[languages, expected] : rows) {
        const test::ScopedVariable language("LANGUAGE", languages);
        EXPECT_EQ(name(names), expected) << languages.constData();
    }
}

TEST_F(DesktopEntryTest, TheIconIsInTheUsersLanguageToo)
{
    const test::ScopedVariable language("LANGUAGE", "de");
    const auto entry = read(test::desktopEntry(u"/bin/sh"_s, "Icon=icon\nIcon[de]=Bild\n")).entry;
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->icon, u"Bild"_s);
}

TEST_F(DesktopEntryTest, WithoutANameItIsCalledAsItsFile)
{
    for (const QByteArray name : {"", "Name=\n", "Name[de]=Stellvertreter\n"}) {
        const test::ScopedVariable language("LANGUAGE", "en");
        const QByteArray text = "[Desktop Entry]\nType=Application\nExec=/bin/sh\n" + name;
        const auto entry = DesktopEntryFile::read(home_.write(u"my.browser.desktop"_s, text)).entry;
        ASSERT_TRUE(entry.has_value()) << name.constData();
        EXPECT_EQ(entry->name, u"my.browser"_s) << name.constData();
    }
}

TEST_F(DesktopEntryTest, NamesMayBeInAnyScript)
{
    EXPECT_EQ(name("Name=\u65e5\u672c\u8a9e \u2013 %U & \xf0\x9f\x98\x80\n"),
              u"\u65e5\u672c\u8a9e \u2013 %U & \U0001F600"_s);
}

TEST_F(DesktopEntryTest, AHiddenEntryIsNoMoreThanHidden)
{
    const std::vector<QByteArray> contents{
        test::desktopEntry(u"/bin/sh"_s, "Hidden=true\n"),
        "[Desktop Entry]\nHidden=true\n",
        "[Desktop Entry]\nType=Link\nHidden=true\n",
        test::desktopEntry(u"/no/such/program"_s, "Hidden=true\n"),
    };
    for (const QByteArray &content : contents) {
        const DesktopEntryFile file = read(content);
        EXPECT_TRUE(file.isHidden) << content.constData();
        EXPECT_EQ(file.entry, std::nullopt) << content.constData();
    }
}

TEST_F(DesktopEntryTest, AnEntryThatMenusDoNotShowCounts)
{
    for (const QByteArray keys : {"NoDisplay=true\n", "OnlyShowIn=OTHER;\n", "NotShowIn=GNOME;KDE;\n", "Hidden=false\n",
                                  "Terminal=true\n", "DBusActivatable=true\n"}) {
        const DesktopEntryFile file = read(test::desktopEntry(u"/bin/sh"_s, keys));
        EXPECT_TRUE(file.entry.has_value()) << keys.constData();
        EXPECT_FALSE(file.isHidden) << keys.constData();
    }
}

TEST_F(DesktopEntryTest, AnEntryWhoseProgramIsNotThereIsNone)
{
    const QString plain = home_.write(u"plain"_s, "#!/bin/sh\n");
    const std::vector<QByteArray> contents{
        test::desktopEntry(u"/no/such/program %U"_s),
        test::desktopEntry(u"no-such-program-in-path"_s),
        test::desktopEntry(plain),
        test::desktopEntry(home_.path()),
        test::desktopEntry(u"/bin/sh"_s, "TryExec=/no/such/program\n"),
        test::desktopEntry(u"/bin/sh"_s, "TryExec=no-such-program-in-path\n"),
        test::desktopEntry(u"/bin/sh"_s, "TryExec=" + plain.toUtf8() + '\n'),
        test::desktopEntry(u"/bin/sh \"half"_s),
        test::desktopEntry(QString()),
        test::desktopEntry(u"\"\" %U"_s),
        "[Desktop Entry]\nType=Application\nName=Stand-in\n",
        "[Desktop Entry]\nType=Application\nName=Stand-in\nDBusActivatable=true\n",
    };
    for (const QByteArray &content : contents) {
        const DesktopEntryFile file = read(content);
        EXPECT_EQ(file.entry, std::nullopt) << content.constData();
        EXPECT_FALSE(file.isHidden) << content.constData();
    }
}

TEST_F(DesktopEntryTest, ProgramsAreFoundThroughPathAndByTheirPath)
{
    const QByteArray program = home_.installProgram().toUtf8();
    EXPECT_TRUE(read(test::desktopEntry(u"sh"_s)).entry.has_value());
    EXPECT_TRUE(read(test::desktopEntry(u"/bin/sh"_s, "TryExec=sh\n")).entry.has_value());
    EXPECT_TRUE(read(test::desktopEntry(QString::fromUtf8(program), "TryExec=" + program + '\n')).entry.has_value());
}

TEST_F(DesktopEntryTest, WhatIsNoApplicationsEntryIsNone)
{
    const std::vector<QByteArray> contents{
        {},
        "\n\n",
        "Name=Stand-in\nExec=/bin/sh\nType=Application\n",
        "[Other Group]\nType=Application\nName=Stand-in\nExec=/bin/sh\n",
        "[Desktop Entry]\nType=Link\nName=Stand-in\nURL=https://example.com/\nExec=/bin/sh\n",
        "[Desktop Entry]\nType=Directory\nName=Stand-in\nExec=/bin/sh\n",
        "[Desktop Entry]\nName=Stand-in\nExec=/bin/sh\n",
        "[Desktop Entry]\nType=Application\nName=Stand-in\nExec=/bin/sh\nno key and no group\n",
        "\x7f\x45LF\x02\x01\x01",
        QByteArray(4096, '\0'),
        QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
        "{\"Desktop Entry\": {}}",
        QByteArray(1 << 20, '['),
    };
    for (const QByteArray &content : contents)
        EXPECT_TRUE(isNothing(home_.write(u"entry.desktop"_s, content)))
            << content.first(qMin(content.size(), 80)).constData();
}

TEST_F(DesktopEntryTest, AnEntryOfOneMebibyteIsReadWhole)
{
    const QString longText(1 << 20, u'x');
    const auto entry = read(test::desktopEntry(u"/bin/sh "_s + longText, "Icon=" + longText.toUtf8() + '\n')).entry;
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->exec.size(), longText.size() + 8);
    EXPECT_EQ(entry->icon, longText);
}

TEST_F(DesktopEntryTest, WhatIsNotThereOrNoFileIsNone)
{
    EXPECT_TRUE(isNothing(home_.path(u"missing.desktop"_s)));
    EXPECT_TRUE(isNothing(home_.path(u"missing/missing.desktop"_s)));
    EXPECT_TRUE(isNothing(home_.makeFolder(u"folder.desktop"_s)));
    EXPECT_TRUE(isNothing(home_.link(u"dangling.desktop"_s, u"/no/such/file"_s)));
    EXPECT_TRUE(isNothing(home_.link(u"circle.desktop"_s, home_.path(u"circle.desktop"_s))));
    EXPECT_TRUE(isNothing(home_.link(u"zeroes.desktop"_s, u"/dev/zero"_s)));
    EXPECT_TRUE(isNothing(QString()));
}

TEST_F(DesktopEntryTest, APipeInAnEntrysPlaceDoesNotBlock)
{
    EXPECT_TRUE(isNothing(home_.makePipe(u"pipe.desktop"_s)));
    EXPECT_TRUE(isNothing(home_.link(u"link.desktop"_s, home_.path(u"pipe.desktop"_s))));
}

TEST_F(DesktopEntryTest, LinksToEntriesAreFollowed)
{
    home_.write(u"real.desktop"_s, test::desktopEntry(u"/bin/sh"_s));
    const auto entry = DesktopEntryFile::read(home_.link(u"link.desktop"_s, home_.path(u"real.desktop"_s))).entry;
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->path, home_.path(u"link.desktop"_s));
}

TEST_F(DesktopEntryTest, AnEntryThatMayNotBeReadIsNone)
{
    const QString path = home_.write(u"entry.desktop"_s, test::desktopEntry(u"/bin/sh"_s));
    const auto answer = [&path] { return DesktopEntryFile::read(path).entry ? u"an entry"_s : u"no entry"_s; };
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"an entry"_s);
    const test::ClosedPath closed(path);
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"no entry"_s);
}

TEST_F(DesktopEntryTest, PathsMayHoldAnything)
{
    for (const QString &text : test::oddTexts()) {
        if (text.contains(u'/') || text.contains(QChar(u'\0')) || text.toUtf8().size() > 255)
            continue;
        const auto entry = DesktopEntryFile::read(home_.write(text, test::desktopEntry(u"/bin/sh"_s))).entry;
        ASSERT_TRUE(entry.has_value()) << text.toStdString();
        EXPECT_EQ(entry->path, home_.path(text));
    }
}

} // namespace
} // namespace vantrel
