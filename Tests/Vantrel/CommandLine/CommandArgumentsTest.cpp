#include "Vantrel/CommandLine/CommandArguments.h"

#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

CommandSyntax syntax()
{
    return {.command = u"cook"_s,
            .description = u"Cooks a meal."_s,
            .switches = {{u"hot"_s, u"At a high temperature."_s}, {u"slowly"_s, u"Takes its time."_s}},
            .required = {{u"MEAL"_s, u"What to cook."_s}, {u"POT"_s, u"Where to."_s}},
            .repeated = {u"SPICE"_s, u"What to add."_s}};
}

CommandSyntax syntaxWithoutMore()
{
    CommandSyntax plain = syntax();
    plain.repeated = {};
    return plain;
}

CommandSyntax syntaxWithOption()
{
    CommandSyntax syntax = vantrel::syntax();
    syntax.options = {{u"guest"_s, u"NAME"_s, u"For whom."_s}};
    return syntax;
}

class CommandArgumentsTest : public testing::Test {
protected:
    [[nodiscard]] std::expected<CommandArguments, ExitStatus> parse(const QStringList &arguments,
                                                                    const CommandSyntax &syntax = ::vantrel::syntax())
    {
        return CommandArguments::parse(syntax, arguments, output_);
    }

    /// What is said about arguments that don't fit.
    [[nodiscard]] QString complaint(const QStringList &arguments, const CommandSyntax &syntax = ::vantrel::syntax())
    {
        const test::TemporaryStream messages;
        Output output(results_.file(), messages.file());
        const auto parsed = CommandArguments::parse(syntax, arguments, output);
        EXPECT_FALSE(parsed.has_value()) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(parsed || parsed.error() == ExitStatus::wrongUsage) << arguments.join(u' ').toStdString();
        return messages.text();
    }

    test::TemporaryStream results_;
    test::TemporaryStream messages_;
    Output output_{results_.file(), messages_.file()};
};

const QString hint = u"\nTry “vantrel cook --help”.\n"_s;

TEST_F(CommandArgumentsTest, WordsAndSwitchesComeInAnyOrder)
{
    const std::vector<std::pair<QStringList, std::pair<QStringList, QStringList>>> rows{
        {{u"soup"_s, u"pan"_s}, {{u"soup"_s, u"pan"_s}, {}}},
        {{u"soup"_s, u"pan"_s, u"salt"_s, u"salt"_s}, {{u"soup"_s, u"pan"_s, u"salt"_s, u"salt"_s}, {}}},
        {{u"--slowly"_s, u"soup"_s, u"--hot"_s, u"pan"_s}, {{u"soup"_s, u"pan"_s}, {u"hot"_s, u"slowly"_s}}},
        {{u"soup"_s, u"pan"_s, u"--hot"_s, u"--hot"_s}, {{u"soup"_s, u"pan"_s}, {u"hot"_s}}},
        {{u"--hot"_s, u"--"_s, u"--slowly"_s, u"-x"_s}, {{u"--slowly"_s, u"-x"_s}, {u"hot"_s}}},
        {{QString(), u"-"_s}, {{QString(), u"-"_s}, {}}},
    };
    for (const auto &[arguments, expected] : rows) {
        const auto parsed = parse(arguments);
        ASSERT_TRUE(parsed.has_value()) << arguments.join(u' ').toStdString();
        EXPECT_EQ(parsed->words, expected.first) << arguments.join(u' ').toStdString();
        EXPECT_EQ(parsed->switches, expected.second) << arguments.join(u' ').toStdString();
        EXPECT_EQ(parsed->has(u"hot"), expected.second.contains(u"hot"_s));
        EXPECT_EQ(parsed->has(u"slowly"), expected.second.contains(u"slowly"_s));
        EXPECT_FALSE(parsed->has(u"help"));
    }
    EXPECT_EQ(results_.text(), QString());
    EXPECT_EQ(messages_.text(), QString());
}

TEST_F(CommandArgumentsTest, WordsArriveAsTheyWereWritten)
{
    const auto parsed = parse(QStringList(u"--"_s) + test::oddTexts());
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->words, test::oddTexts());
}

TEST_F(CommandArgumentsTest, AMissingWordIsNamed)
{
    EXPECT_EQ(complaint({}), u"vantrel: MEAL is missing."_s + hint);
    EXPECT_EQ(complaint({u"--hot"_s}), u"vantrel: MEAL is missing."_s + hint);
    EXPECT_EQ(complaint({u"soup"_s}), u"vantrel: POT is missing."_s + hint);
}

TEST_F(CommandArgumentsTest, AWordTooManyIsNamed)
{
    EXPECT_EQ(complaint({u"soup"_s, u"pan"_s, u"sa\x1blt"_s, u"more"_s}, syntaxWithoutMore()),
              u"vantrel: “sa\\x1blt” is one word too many."_s + hint);
    EXPECT_TRUE(parse({u"soup"_s, u"pan"_s}, syntaxWithoutMore()).has_value());
}

TEST_F(CommandArgumentsTest, AnUnknownSwitchIsWrong)
{
    for (const QString &option : {u"--cold"_s, u"--ho"_s, u"--hotter"_s, u"-x"_s, u"-hot"_s, u"--hot=1"_s,
                                  u"--help=1"_s, u"--HOT"_s, u"--new\nline"_s}) {
        const QString said = complaint({u"soup"_s, u"pan"_s, option});
        EXPECT_TRUE(said.startsWith("vantrel: "_L1)) << said.toStdString();
        EXPECT_TRUE(said.endsWith(hint)) << said.toStdString();
        EXPECT_EQ(said.count(u'\n'), 2) << said.toStdString();
    }
}

TEST_F(CommandArgumentsTest, HelpComesBeforeAnyOtherComplaint)
{
    const QString help = u"Usage: vantrel cook [--hot] [--slowly] MEAL POT [SPICE…]\n"
                         "\n"
                         "Cooks a meal.\n"
                         "\n"
                         "  MEAL      What to cook.\n"
                         "  POT       Where to.\n"
                         "  SPICE     What to add.\n"
                         "  --hot     At a high temperature.\n"
                         "  --slowly  Takes its time.\n"
                         "  --help    Show this help.\n"_s;
    for (const QStringList &arguments :
         {QStringList{u"--help"_s}, QStringList{u"-h"_s}, QStringList{u"soup"_s, u"--help"_s, u"--hot"_s}}) {
        const test::TemporaryStream results;
        Output output(results.file(), messages_.file());
        const auto parsed = CommandArguments::parse(syntax(), arguments, output);
        ASSERT_FALSE(parsed.has_value());
        EXPECT_EQ(parsed.error(), ExitStatus::done);
        EXPECT_EQ(results.text(), help);
    }
    EXPECT_EQ(messages_.text(), QString());
}

TEST_F(CommandArgumentsTest, HelpBehindTheDoubleDashIsAWord)
{
    const auto parsed = parse({u"--"_s, u"--help"_s, u"-h"_s});
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->words, (QStringList{u"--help"_s, u"-h"_s}));
}

TEST_F(CommandArgumentsTest, HelpWithoutSwitchesOrWordsIsShort)
{
    ASSERT_FALSE(
        parse({u"--help"_s},
              {.command = u"rest"_s, .description = u"Does nothing."_s, .switches = {}, .required = {}, .repeated = {}})
            .has_value());
    EXPECT_EQ(results_.text(), u"Usage: vantrel rest\n\nDoes nothing.\n\n  --help  Show this help.\n"_s);
}

TEST_F(CommandArgumentsTest, AnOptionHasAValue)
{
    for (const QStringList &option : {QStringList{u"--guest"_s, u"Ann"_s}, QStringList{u"--guest=Ann"_s}}) {
        const auto parsed = parse(option + QStringList{u"soup"_s, u"pan"_s}, syntaxWithOption());
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->value(u"guest"_s), u"Ann"_s);
        EXPECT_EQ(parsed->words, (QStringList{u"soup"_s, u"pan"_s}));
    }
    EXPECT_EQ(parse({u"soup"_s, u"pan"_s}, syntaxWithOption())->value(u"guest"_s), std::nullopt);
    EXPECT_EQ(parse({u"--guest="_s, u"soup"_s, u"pan"_s}, syntaxWithOption())->value(u"guest"_s), QString());
    EXPECT_EQ(parse({u"soup"_s, u"pan"_s, u"--guest"_s}, syntaxWithOption()).error(), ExitStatus::wrongUsage);
}

} // namespace
} // namespace vantrel
