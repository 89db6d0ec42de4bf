#include "Tests/Platform/Linux/Search/SearchFixture.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Fit = ProfileAnswers::Found::Fit;

const QString interface = u"org.gnome.Shell.SearchProvider2."_s;

class ShellSearchInterfaceTest : public test::SearchFixture {
protected:
    ShellSearchInterfaceTest()
    {
        answers_.find(u"a/1"_s, u"Chrome – Wörk"_s, Fit::wholeName);
        answers_.find(u"b/2"_s, u"Brave – Home"_s, Fit::somewhere);
    }

    /// A call whose method is named without its interface.
    [[nodiscard]] QString callShell(const QString &method, const QStringList &arguments)
    {
        return call(interface + method, arguments);
    }
};

TEST_F(ShellSearchInterfaceTest, AnInitialSearchAnswersWithIdsInTheirOrder)
{
    EXPECT_EQ(callShell(u"GetInitialResultSet"_s, {u"['chrome', 'wör']"_s}), u"(['a/1', 'b/2'],)"_s);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"search chrome|wör 500"_s));
}

TEST_F(ShellSearchInterfaceTest, ASubsearchLooksForTheTermsAnew)
{
    EXPECT_EQ(callShell(u"GetSubsearchResultSet"_s, {u"['gone']"_s, u"['chrome']"_s}), u"(['a/1', 'b/2'],)"_s);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"search chrome 500"_s));
}

TEST_F(ShellSearchInterfaceTest, MetasHaveNamesAndPicturesAsGioSerialisesThem)
{
    // "PNG 48" as bytes.
    EXPECT_EQ(
        callShell(u"GetResultMetas"_s, {u"['a/1', 'gone']"_s}),
        u"([{'description': <'about Chrome – Wörk'>, 'icon': <('bytes', <[byte 0x50, 0x4e, 0x47, 0x20, 0x34, 0x38]>"
        ")>, 'id': <'a/1'>, 'name': <'Chrome – Wörk'>}],)"_s);
    EXPECT_EQ(callShell(u"GetResultMetas"_s, {u"@as []"_s}), u"(@aa{sv} [],)"_s);
}

TEST_F(ShellSearchInterfaceTest, ChoosingAResultOpensItWithTheTimeOfTheAct)
{
    EXPECT_EQ(callShell(u"ActivateResult"_s, {u"a/1"_s, u"['chrome']"_s, u"4294967295"_s}), u"()"_s);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"open found a/1 [] [] 4294967295"_s));
}

TEST_F(ShellSearchInterfaceTest, AResultThatIsGoneIsAnError)
{
    answers_.refuse({ProfileAnswers::Refusal::Reason::unknownProfile, u"There is none."_s});
    EXPECT_EQ(callShell(u"ActivateResult"_s, {u"a/1"_s, u"@as []"_s, u"0"_s}),
              u"Error: GDBus.Error:app.kestrune.Vantrel.Error.UnknownProfile: There is none."_s);
}

TEST_F(ShellSearchInterfaceTest, ALargerSearchShowsTheAppsList)
{
    EXPECT_EQ(callShell(u"LaunchSearch"_s, {u"['chrome']"_s, u"1234"_s}), u"()"_s);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"show list [] [] 1234"_s));
}

} // namespace
} // namespace vantrel
