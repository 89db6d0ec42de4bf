#include "Platform/Linux/Launchers/LauncherEntry.h"

#include "Platform/Linux/EntryText.h"
#include "Platform/Linux/ExecLine.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QProcess>

#include <glib.h>
#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

LauncherEntry entry()
{
    return {.name = u"Google Chrome – Work"_s,
            .comment = u"Opens it"_s,
            .icon = u"vantrel-0123456789ab-00"_s,
            .command = {u"/usr/bin/vantrel"_s, u"open"_s, u"vantrel://?a=b%20c"_s},
            .privateWindow = LauncherEntry::Action{u"Incognito Window"_s, {u"/usr/bin/vantrel"_s, u"open"_s}},
            .profileID = u"com.google.Chrome/chromium:Default"_s};
}

/// A value of the entry as GLib reads it, which is what desktops do.
QString readByGlib(const QByteArray &text, const char *key, const char *group = "Desktop Entry")
{
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> file(g_key_file_new(), g_key_file_unref);
    EXPECT_TRUE(g_key_file_load_from_data(file.get(), text.constData(), static_cast<gsize>(text.size()),
                                          G_KEY_FILE_NONE, nullptr));
    const std::unique_ptr<char, decltype(&g_free)> value(g_key_file_get_string(file.get(), group, key, nullptr),
                                                         g_free);
    return QString::fromUtf8(value.get());
}

/// What desktops make of the Exec key: the words, each with its doubled percent signs as one.
QStringList startedByGlib(const LauncherEntry &entry)
{
    QStringList words = execWords(readByGlib(entry.text(), "Exec")).value_or(QStringList());
    EXPECT_EQ(words.value(words.size() - 1), u"%U"_s);
    words.removeLast();
    if (words.first() == "sh"_L1)
        words = words.sliced(3);
    return words.replaceInStrings(u"%%"_s, u"%"_s);
}

void expectValid(const LauncherEntry &entry)
{
    const test::TemporaryFolder folder;
    const QString path = folder.write(u"vantrel-launcher.desktop"_s, entry.text());
    QProcess program;
    program.start(u"desktop-file-validate"_s, {path});
    ASSERT_TRUE(program.waitForFinished()) << "desktop-file-validate is missing; its package is desktop-file-utils.";
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.readAllStandardOutput(), "") << entry.text().constData();
}

TEST(LauncherEntry, TheFileIsThisOne)
{
    EXPECT_EQ(entry().text(), "[Desktop Entry]\n"
                              "Type=Application\n"
                              "Name=Google Chrome – Work\n"
                              "Comment=Opens it\n"
                              "Icon=vantrel-0123456789ab-00\n"
                              "TryExec=/usr/bin/vantrel\n"
                              "Exec=/usr/bin/vantrel open \"vantrel://?a=b%%20c\" %U\n"
                              "Terminal=false\n"
                              "StartupNotify=true\n"
                              "Categories=Network;\n"
                              "X-Vantrel-Profile=com.google.Chrome/chromium:Default\n"
                              "Actions=private;\n"
                              "\n"
                              "[Desktop Action private]\n"
                              "Name=Incognito Window\n"
                              "Exec=/usr/bin/vantrel open\n");
}

TEST(LauncherEntry, ItClaimsNoTypeOfFileOrLink)
{
    EXPECT_FALSE(entry().text().contains("MimeType"));
    EXPECT_FALSE(entry().text().contains("x-scheme-handler"));
}

TEST(LauncherEntry, ArgumentsAreQuotedWhereTheyMustBe)
{
    const QList<std::pair<QString, QString>> rows{
        {u"plain-1.0/x:y@z+a,b_c"_s, u"plain-1.0/x:y@z+a,b_c"_s},
        {u""_s, u"\"\""_s},
        {u"two words"_s, u"\"two words\""_s},
        {u"100%"_s, u"100%%"_s},
        {u"%U"_s, u"%%U"_s},
        {u"a=b"_s, u"\"a=b\""_s},
        {u"\"`$\\"_s, u"\"\\\"\\`\\$\\\\\""_s},
        {u"it's"_s, u"\"it's\""_s},
        {u"a;b&c|d<e>f(g)*?#~"_s, u"\"a;b&c|d<e>f(g)*?#~\""_s},
        {u"é"_s, u"\"é\""_s},
        {u"a\0b"_s, u"ab"_s},
    };
    for (const auto &[argument, word] : rows)
        EXPECT_EQ(execWord(argument), word);
}

TEST(LauncherEntry, AProgramWhosePathDesktopsWouldMisreadIsStartedByTheShell)
{
    LauncherEntry odd = entry();
    odd.command = {u"/opt/50%/vantrel"_s, u"x"_s};
    EXPECT_EQ(readByGlib(odd.text(), "Exec"), u"sh -c \"exec \\\"\\$0\\\" \\\"\\$@\\\"\" /opt/50%%/vantrel x %U"_s);
    EXPECT_EQ(readByGlib(odd.text(), "TryExec"), u"/opt/50%/vantrel"_s);
    odd.command = {u"/opt/a=b/vantrel"_s};
    EXPECT_TRUE(readByGlib(odd.text(), "Exec").startsWith("sh -c "_L1));
    EXPECT_TRUE(readByGlib(entry().text(), "Exec").startsWith("/usr/bin/vantrel "_L1));
}

TEST(LauncherEntry, ValuesHaveTheirLineEndsAndLeadingBlankEscaped)
{
    EXPECT_EQ(keyFileValue(u"  a\nb\r\tc\\n"_s), u"\\s a\\nb\\r\\tc\\\\n"_s);
    EXPECT_EQ(keyFileValue(u"\n[Desktop Entry]\nExec=evil"_s), u"\\n[Desktop Entry]\\nExec=evil"_s);
}

TEST(LauncherEntry, AnyNameProgramAndArgumentIsReadBackByOthers)
{
    for (const QString &text : test::oddTexts()) {
        LauncherEntry odd = entry();
        const QString expected = QString(text).remove(u'\0');
        odd.name = text;
        odd.command = {u"/opt/"_s + text + u"/vantrel"_s, text, u"open"_s};
        odd.profileID = text;
        odd.privateWindow->name = text;
        EXPECT_EQ(readByGlib(odd.text(), "Name"), expected);
        EXPECT_EQ(readByGlib(odd.text(), "Name", "Desktop Action private"), expected);
        EXPECT_EQ(readByGlib(odd.text(), "X-Vantrel-Profile"), expected);
        EXPECT_EQ(readByGlib(odd.text(), "TryExec"), u"/opt/"_s + expected + u"/vantrel"_s);
        EXPECT_EQ(startedByGlib(odd), (QStringList{u"/opt/"_s + expected + u"/vantrel"_s, expected, u"open"_s}));
    }
}

TEST(LauncherEntry, EntriesAreValid)
{
    expectValid(entry());
    LauncherEntry plain = entry();
    plain.privateWindow.reset();
    expectValid(plain);
    for (const QString &name : {u"\"quoted\" $HOME `id` \\ 100%"_s, u"line\nbreak"_s, u"עבודה (בית)"_s, u"a;b=c#d"_s,
                                u"[Desktop Entry]"_s, u"  blanks "_s, u"👩‍💻"_s, QString(300, u'x')}) {
        LauncherEntry odd = entry();
        odd.name = name;
        odd.command.append(name);
        odd.profileID = name;
        expectValid(odd);
    }
}

} // namespace
} // namespace vantrel
