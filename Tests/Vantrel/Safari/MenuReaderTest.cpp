#include "Vantrel/Safari/MenuReader.h"

#include "Tests/Fakes/FakeClock.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeScriptRunner.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/Safari/SafariPrinting.h"
#include "Vantrel/Safari/MenuLanguage.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

using Runner = test::FakeScriptRunner;

const QString notYet = u"[ScriptingErrors] information: Safari's menu bar isn't readable yet"_s;
const QString germanBar = u"Apple\nSafari\nAblage\nBearbeiten\n"_s;

const std::vector<std::pair<Runner::End, Failure>> &fatalEnds()
{
    static const std::vector<std::pair<Runner::End, Failure>> ends{
        {Runner::hanging(), Failure::timeOut()},
        {Runner::failing(u"(-1743)"_s), Failure::automation()},
        {Runner::failing(u"(-1719)"_s), Failure::accessibility()},
        {Runner::failing(u"(-25211)"_s), Failure::accessibility()},
    };
    return ends;
}

class MenuReaderTest : public testing::Test {
protected:
    Result<std::optional<SafariLanguage>> language() { return QCoro::waitFor(reader_.language(u"Safari"_s)); }
    Result<std::optional<ProfileItems>> items(const SafariLanguage &language = SafariLanguage::english())
    {
        return QCoro::waitFor(reader_.profileItems(u"Safari"_s, language));
    }

    /// The lines without those of the scripts themselves.
    QStringList ownLines() { return log_.takeLines().filter(u"isn't readable yet"_s); }

    static QString attemptLine(int number)
    {
        return u"[ScriptingErrors] information: Safari's profile menu isn't readable yet, attempt %1"_s.arg(number);
    }

    test::EventProgram program_;
    Runner runner_;
    test::FakeLog log_;
    test::FakeClock clock_;
    Scripting scripting_{runner_, log_};
    Languages languages_{QUrl::fromLocalFile(QStringLiteral(VANTREL_SAFARI_LANGUAGES "/App/")),
                         QUrl::fromLocalFile(QStringLiteral(VANTREL_SAFARI_LANGUAGES "/Framework/"))};
    MenuReader reader_{{scripting_, languages_, clock_, log_}};
};

TEST_F(MenuReaderTest, TheLanguageIsThatOfTheMenuBar)
{
    runner_.answer(Runner::printing(germanBar));
    const auto read = language();
    ASSERT_TRUE(read && *read);
    EXPECT_EQ((*read)->code, u"de"_s);
    EXPECT_EQ(runner_.takeScripts(), QStringList(menuBarScript(u"Safari"_s)));
    EXPECT_EQ(clock_.takeSleeps(), QList<int>());
}

TEST_F(MenuReaderTest, AMenuBarOfNoKnownLanguageIsEnglish)
{
    runner_.answer(Runner::printing(u"Apple\n"_s));
    const auto read = language();
    ASSERT_TRUE(read && *read);
    EXPECT_EQ(**read, SafariLanguage::english());
}

TEST_F(MenuReaderTest, AMenuBarThatIsNotThereYetIsReadAgain)
{
    runner_.answer(Runner::printing({}));
    runner_.answer(Runner::failing(u"Can’t get process"_s));
    runner_.answer(Runner::failing({}));
    runner_.answer(Runner::refusing(u"No memory"_s));
    runner_.answer(Runner::printing(germanBar));
    const auto read = language();
    ASSERT_TRUE(read && *read);
    EXPECT_EQ((*read)->code, u"de"_s);
    EXPECT_EQ(runner_.takeScripts().size(), 5);
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(4, 50));
    EXPECT_EQ(ownLines(), QStringList(4, notYet));
}

TEST_F(MenuReaderTest, AMenuBarIsTriedTenTimes)
{
    const auto read = language();
    ASSERT_TRUE(read.has_value());
    EXPECT_FALSE(read->has_value());
    EXPECT_EQ(runner_.takeScripts(), QStringList(10, menuBarScript(u"Safari"_s)));
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(9, 50));
    EXPECT_EQ(ownLines(), QStringList(10, notYet));
}

TEST_F(MenuReaderTest, FatalFailuresEndTheReadingOfTheMenuBarAtOnce)
{
    for (const auto &[end, failure] : fatalEnds()) {
        runner_.answer(Runner::printing({}));
        runner_.answer(end);
        const auto read = language();
        ASSERT_FALSE(read.has_value());
        EXPECT_EQ(read.error(), failure);
        EXPECT_EQ(runner_.takeScripts().size(), 2);
        EXPECT_EQ(ownLines().size(), 1);
    }
}

TEST_F(MenuReaderTest, ProfilesInTheFileMenuItselfAreRead)
{
    runner_.answer(Runner::printing(u"New Work Window\n\nNew Private Window\n"_s));
    EXPECT_EQ(items(), (ProfileItems{{u"New Work Window"_s, u""_s, u"New Private Window"_s}, MenuLayout::flat}));
    EXPECT_EQ(runner_.takeScripts(), QStringList(fileMenuScript(u"Safari"_s, u"File"_s)));
}

TEST_F(MenuReaderTest, ProfilesInAMenuOfTheirOwnAreRead)
{
    SafariLanguage language = SafariLanguage::english();
    language.newWindow = u"\"Nové\" okno"_s;
    // The menu may have an accent of its own where the files have a letter with its accent.
    runner_.answer(Runner::printing(u"\"Nove\u0301\" okno\nClose\n"_s));
    runner_.answer(Runner::printing(u"New Work Window\n"_s));
    EXPECT_EQ(items(language), (ProfileItems{{u"New Work Window"_s}, MenuLayout::submenu}));
    EXPECT_EQ(runner_.takeScripts(),
              QStringList({fileMenuScript(u"Safari"_s, u"File"_s), profileSubmenuScript(u"Safari"_s, language)}));
}

TEST_F(MenuReaderTest, OnlyTheFirstItemHasAMenuOfProfiles)
{
    runner_.answer(Runner::printing(u"New Work Window\nNew Window\n"_s));
    EXPECT_EQ(items(), (ProfileItems{{u"New Work Window"_s, u"New Window"_s}, MenuLayout::flat}));
    EXPECT_EQ(runner_.takeScripts().size(), 1);
}

TEST_F(MenuReaderTest, AProfileMenuThatIsNotThereYetIsReadFromTheBeginning)
{
    runner_.answer(Runner::printing({}));
    runner_.answer(Runner::failing(u"Can’t get menu"_s));
    runner_.answer(Runner::printing(u"New Window\n"_s));
    runner_.answer(Runner::printing({}));
    runner_.answer(Runner::printing(u"New Window\n"_s));
    runner_.answer(Runner::failing({}));
    runner_.answer(Runner::printing(u"New Window\n"_s));
    runner_.answer(Runner::printing(u"New Work Window\n"_s));
    EXPECT_EQ(items(), (ProfileItems{{u"New Work Window"_s}, MenuLayout::submenu}));
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(4, 200));
    EXPECT_EQ(ownLines(), QStringList({attemptLine(1), attemptLine(2), attemptLine(3), attemptLine(4)}));
}

TEST_F(MenuReaderTest, AProfileMenuIsTriedFiveTimes)
{
    const auto read = items();
    ASSERT_TRUE(read.has_value());
    EXPECT_FALSE(read->has_value());
    EXPECT_EQ(runner_.takeScripts().size(), 5);
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(4, 200));
    EXPECT_EQ(ownLines().last(), attemptLine(5));
}

TEST_F(MenuReaderTest, FatalFailuresEndTheReadingOfItemsAtOnceInBothMenus)
{
    for (const auto &[end, failure] : fatalEnds()) {
        runner_.answer(end);
        EXPECT_EQ(items().error(), failure);
        EXPECT_EQ(runner_.takeScripts().size(), 1);
        runner_.answer(Runner::printing(u"New Window\n"_s));
        runner_.answer(end);
        EXPECT_EQ(items().error(), failure);
        EXPECT_EQ(runner_.takeScripts().size(), 2);
        EXPECT_EQ(ownLines(), QStringList());
    }
}

TEST(MenuLanguage, WithoutAMenuBarARunningSafariIsTakenForAnEnglishOne)
{
    SafariLanguage german = SafariLanguage::english();
    german.code = u"de"_s;
    EXPECT_EQ(menuLanguage(german, false), german);
    EXPECT_EQ(menuLanguage(std::nullopt, true), SafariLanguage::english());
    EXPECT_EQ(menuLanguage(std::nullopt, false).error(), Failure::notStarted());
    EXPECT_EQ(menuLanguage(std::unexpected(Failure::timeOut()), true).error(), Failure::timeOut());
}

} // namespace
} // namespace vantrel::Safari
