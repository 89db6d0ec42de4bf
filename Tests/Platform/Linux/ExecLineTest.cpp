#include "Platform/Linux/ExecLine.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString home = u"/home/user"_s;
const QStringList given{u"--switch=two words"_s, u"https://example.com/?a=%20&b=1"_s};

QStringList split(const QString &exec)
{
    const auto words = execWords(exec);
    EXPECT_TRUE(words.has_value()) << exec.toStdString() << ": " << words.error().message.toStdString();
    return words.value_or(QStringList());
}

DesktopEntry entryWith(const QString &exec)
{
    return {.path = u"/share/my browser.desktop"_s,
            .name = u"My “Browser” & Co"_s,
            .exec = exec,
            .icon = u"my icon"_s,
            .workingDirectory = {},
            .flatpakID = {}};
}

QStringList expanded(const DesktopEntry &entry, const QStringList &arguments = given)
{
    const auto line = expandedCommandLine(entry, arguments, home);
    EXPECT_TRUE(line.has_value()) << entry.exec.toStdString() << ": " << line.error().message.toStdString();
    return line.value_or(QStringList());
}

/// `words` with what was given in the place of the word "GIVEN".
QStringList filled(const QStringList &words)
{
    QStringList line;
    for (const QString &word : words)
        line.append(word == "GIVEN"_L1 ? given : QStringList(word));
    return line;
}

TEST(ExecLine, WordsAreSplitAtBlanksAndQuotesComeOff)
{
    const std::vector<std::pair<QString, QStringList>> rows{
        {u"browser"_s, {u"browser"_s}},
        {u"  browser \t --a   --b  "_s, {u"browser"_s, u"--a"_s, u"--b"_s}},
        {uR"("/opt/My Browser/browser" %U)"_s, {u"/opt/My Browser/browser"_s, u"%U"_s}},
        {u"browser 'single quoted'"_s, {u"browser"_s, u"single quoted"_s}},
        {uR"(browser "say \"hello\"")"_s, {u"browser"_s, u"say \"hello\""_s}},
        {uR"(browser "back\\slash" "\$HOME" "\`id\`")"_s, {u"browser"_s, u"back\\slash"_s, u"$HOME"_s, u"`id`"_s}},
        {uR"(browser 'back\slash')"_s, {u"browser"_s, u"back\\slash"_s}},
        {uR"(browser one\ word)"_s, {u"browser"_s, u"one word"_s}},
        {uR"(browser "")"_s, {u"browser"_s, QString()}},
        {uR"(browser --name="My Browser"/x)"_s, {u"browser"_s, u"--name=My Browser/x"_s}},
        {uR"(browser "'" '"')"_s, {u"browser"_s, u"'"_s, u"\""_s}},
        {u"browser $HOME ~ * ; | & $(id)"_s,
         {u"browser"_s, u"$HOME"_s, u"~"_s, u"*"_s, u";"_s, u"|"_s, u"&"_s, u"$(id)"_s}},
        {u"browser %% %c \"%u\" %"_s, {u"browser"_s, u"%%"_s, u"%c"_s, u"%u"_s, u"%"_s}},
        {u"br\u00f6wser \u65e5\u672c"_s, {u"br\u00f6wser"_s, u"\u65e5\u672c"_s}},
    };
    for (const auto &[exec, words] : rows)
        EXPECT_EQ(split(exec), words) << exec.toStdString();
}

TEST(ExecLine, WithoutMatchingQuotesThereAreNoWords)
{
    for (const QString &exec : {u"browser \"half"_s, u"browser 'half"_s, u"browser half\""_s, u"browser \"a\" 'b\""_s,
                                u"browser \\"_s, QString(), u"   "_s}) {
        const auto words = execWords(exec);
        ASSERT_FALSE(words.has_value()) << exec.toStdString();
        EXPECT_FALSE(words.error().message.isEmpty()) << exec.toStdString();
    }
}

TEST(ExecLine, ACommandLineThatCannotBeReadIsAnError)
{
    const auto line = expandedCommandLine(entryWith(u"browser \"%U"_s), given, home);
    ASSERT_FALSE(line.has_value());
    EXPECT_EQ(line.error(), execWords(u"browser \"%U"_s).error());
}

TEST(ExecLine, ArgumentsTakeThePlaceOfTheFieldCodeForFiles)
{
    const std::vector<std::pair<QString, QStringList>> rows{
        {u"browser %U"_s, {u"browser"_s, u"GIVEN"_s}},
        {u"browser %u"_s, {u"browser"_s, u"GIVEN"_s}},
        {u"browser %F"_s, {u"browser"_s, u"GIVEN"_s}},
        {u"browser %f"_s, {u"browser"_s, u"GIVEN"_s}},
        {u"browser %U --last"_s, {u"browser"_s, u"GIVEN"_s, u"--last"_s}},
        {u"browser %u --last"_s, {u"browser"_s, u"GIVEN"_s, u"--last"_s}},
        {u"browser %F --last"_s, {u"browser"_s, u"GIVEN"_s, u"--last"_s}},
        {u"browser %f --last"_s, {u"browser"_s, u"GIVEN"_s, u"--last"_s}},
        {u"browser --first \"%u\" --last"_s, {u"browser"_s, u"--first"_s, u"GIVEN"_s, u"--last"_s}},
        // The first of several; the others have nothing to stand for.
        {u"browser %U %F --last %u"_s, {u"browser"_s, u"GIVEN"_s, u"--last"_s}},
        // Without one they come last.
        {u"browser"_s, {u"browser"_s, u"GIVEN"_s}},
        {u"browser --new-window"_s, {u"browser"_s, u"--new-window"_s, u"GIVEN"_s}},
        {u"env BAMF_DESKTOP_FILE_HINT=/apps/b_b.desktop /snap/bin/b %u"_s,
         {u"env"_s, u"BAMF_DESKTOP_FILE_HINT=/apps/b_b.desktop"_s, u"/snap/bin/b"_s, u"GIVEN"_s}},
    };
    for (const auto &[exec, words] : rows)
        EXPECT_EQ(expanded(entryWith(exec)), filled(words)) << exec.toStdString();
}

TEST(ExecLine, OtherFieldCodesAreExpandedOrDropped)
{
    const std::vector<std::pair<QString, QStringList>> rows{
        {u"browser %c"_s, {u"browser"_s, u"My “Browser” & Co"_s, u"GIVEN"_s}},
        {u"browser %k"_s, {u"browser"_s, u"/share/my browser.desktop"_s, u"GIVEN"_s}},
        {u"browser %i %U"_s, {u"browser"_s, u"--icon"_s, u"my icon"_s, u"GIVEN"_s}},
        {u"browser %%"_s, {u"browser"_s, u"%"_s, u"GIVEN"_s}},
        {u"browser 100%%25 %%U"_s, {u"browser"_s, u"100%25"_s, u"%U"_s, u"GIVEN"_s}},
        {u"browser %%%% %%%U"_s, {u"browser"_s, u"%%"_s, u"%"_s, u"GIVEN"_s}},
        {u"browser %d %D %n %N %v %m %U"_s, {u"browser"_s, u"GIVEN"_s}},
        {u"browser %x %"_s, {u"browser"_s, u"%"_s, u"GIVEN"_s}},
        {u"browser --title=%c --from=%k --image=%i"_s,
         {u"browser"_s, u"--title=My “Browser” & Co"_s, u"--from=/share/my browser.desktop"_s, u"--image="_s,
          u"GIVEN"_s}},
        {u"browser --url=%u --file=%F. %U"_s, {u"browser"_s, u"--url="_s, u"--file=."_s, u"GIVEN"_s}},
        {u"browser %c%k"_s, {u"browser"_s, u"My “Browser” & Co/share/my browser.desktop"_s, u"GIVEN"_s}},
        {u"browser %d%n %U"_s, {u"browser"_s, u"GIVEN"_s}},
        // An argument that was empty from the beginning is one.
        {u"browser \"\" %U"_s, {u"browser"_s, QString(), u"GIVEN"_s}},
        {u"browser %U%U"_s, {u"browser"_s, u"GIVEN"_s}},
    };
    for (const auto &[exec, words] : rows)
        EXPECT_EQ(expanded(entryWith(exec)), filled(words)) << exec.toStdString();
}

TEST(ExecLine, WithoutAnIconItsFieldCodeGivesNoArgument)
{
    DesktopEntry entry = entryWith(u"browser %i %U"_s);
    entry.icon.clear();
    EXPECT_EQ(expanded(entry), filled({u"browser"_s, u"GIVEN"_s}));
}

TEST(ExecLine, FieldCodesInTheEntrysOwnTextsAreNotExpandedAgain)
{
    DesktopEntry entry = entryWith(u"browser %c %i %k %U"_s);
    entry.name = u"%k %U"_s;
    entry.icon = u"%c"_s;
    entry.path = u"/share/%U.desktop"_s;
    EXPECT_EQ(expanded(entry),
              filled({u"browser"_s, u"%k %U"_s, u"--icon"_s, u"%c"_s, u"/share/%U.desktop"_s, u"GIVEN"_s}));
}

TEST(ExecLine, ArgumentsArePassedOnAsTheyAre)
{
    for (const QString &exec : {u"browser %U"_s, u"browser"_s}) {
        EXPECT_EQ(expanded(entryWith(exec), test::oddTexts()), QStringList(u"browser"_s) + test::oddTexts());
        EXPECT_EQ(expanded(entryWith(exec), {QString()}), (QStringList{u"browser"_s, QString()}));
        EXPECT_EQ(expanded(entryWith(exec), {}), QStringList(u"browser"_s));
    }
}

TEST(ExecLine, TheDataFolderItselfNeedsNoProfileSwitch)
{
    const QString link = u"https://example.com/"_s;
    EXPECT_EQ(expanded(entryWith(u"opera %U"_s), {u"--profile-directory=."_s, link}), (QStringList{u"opera"_s, link}));
    for (const QString &folder : {u".."_s, u"Default"_s, u".hidden"_s}) {
        const QString option = u"--profile-directory="_s + folder;
        EXPECT_EQ(expanded(entryWith(u"opera %U"_s), {option}), (QStringList{u"opera"_s, option}));
    }
}

TEST(ExecLine, OnlyAFlatpakSeesOtherPaths)
{
    for (const QString &path : {u"/home/user/.var/app/org.mozilla.firefox/.mozilla/firefox/p"_s,
                                u"/home/user/.var/app//.mozilla/firefox/p"_s})
        EXPECT_EQ(expanded(entryWith(u"firefox %u"_s), {u"--profile"_s, path}),
                  (QStringList{u"firefox"_s, u"--profile"_s, path}));
}

TEST(ExecLine, OutsideOfAFlatpaksLineMarksAreOrdinaryWords)
{
    EXPECT_EQ(expanded(entryWith(u"browser @@ %U"_s)), filled({u"browser"_s, u"@@"_s, u"GIVEN"_s}));
}

} // namespace
} // namespace vantrel
