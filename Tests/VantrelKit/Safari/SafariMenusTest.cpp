#include "VantrelKit/Safari/SafariMenus.h"

#include "Tests/VantrelKit/Safari/SafariPrinting.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using std::nullopt;
using Position = std::optional<qsizetype>;

SafariLanguage german()
{
    return {u"de"_s,
            u"Ablage"_s,
            u"Bearbeiten"_s,
            u"Neues Fenster"_s,
            u"Neues privates Fenster"_s,
            u"Neues Fenster \u201E%@\u201C"_s};
}

/// A language with English titles of menus and other items.
SafariLanguage regionalEnglish()
{
    return {u"en-GB"_s, u"File"_s, u"Edit"_s, u"New window"_s, u"New private window"_s, u"New %@ window"_s};
}

QStringList fileMenu()
{
    return {u"New Window"_s,
            u"New Private Window"_s,
            u""_s,
            u"New Work Window"_s,
            u"New Personal Window"_s,
            u"New Tab"_s,
            u""_s,
            u"New Work Window"_s,
            u"Close Window"_s};
}

TEST(SafariMenus, TheFoldersAreMarkedAsFolders)
{
    EXPECT_EQ(SafariMenus::appResources().toString(),
              u"file:///System/Volumes/Preboot/Cryptexes/App/System/Applications/Safari.app/Contents/Resources/"_s);
    EXPECT_EQ(SafariMenus::frameworkResources().toString(),
              u"file:///System/Volumes/Preboot/Cryptexes/Incoming/OS/System/Library/PrivateFrameworks/"
              "Safari.framework/Versions/A/Resources/"_s);
    EXPECT_EQ(&SafariMenus::appResources(), &SafariMenus::appResources());
    EXPECT_EQ(&SafariMenus::frameworkResources(), &SafariMenus::frameworkResources());
}

TEST(SafariMenus, TheLanguageIsTheFirstThatMatchesTheMenuBar)
{
    SafariLanguage secondGerman = german();
    secondGerman.code = u"de-AT"_s;
    const QList<SafariLanguage> languages{SafariLanguage::english(), german(), secondGerman, regionalEnglish()};
    const std::vector<std::pair<QStringList, SafariLanguage>> rows{
        {{u"Apple"_s, u"Safari"_s, u"Ablage"_s, u"Bearbeiten"_s, u"Darstellung"_s}, german()},
        {{u"Apple"_s, u"Safari"_s, u"File"_s, u"Edit"_s, u"View"_s}, SafariLanguage::english()},
        {{u"Apple"_s, u"Safari"_s, u"Ablage"_s, u"Edit"_s}, SafariLanguage::english()},
        {{u"Apple"_s, u"Safari"_s, u"Fichier"_s, u"\u00C9dition"_s}, SafariLanguage::english()},
        {{u"Apple"_s, u"Safari"_s, u"Ablage"_s}, SafariLanguage::english()},
        {{u"Ablage"_s, u"Bearbeiten"_s, u"Ablage"_s}, SafariLanguage::english()},
        {{}, SafariLanguage::english()},
    };
    for (const auto &[menuBar, language] : rows)
        EXPECT_EQ(SafariMenus::language(menuBar, languages), language) << menuBar.join(u'|').toStdString();
}

TEST(SafariMenus, TheLanguageIsEnglishWithoutALanguageToChooseFrom)
{
    const QStringList menuBar{u"Apple"_s, u"Safari"_s, u"File"_s, u"Edit"_s};
    EXPECT_EQ(SafariMenus::language(menuBar, {}), SafariLanguage::english());
    EXPECT_EQ(SafariMenus::language(menuBar, {regionalEnglish()}), regionalEnglish());
    EXPECT_EQ(SafariMenus::language(menuBar, {regionalEnglish(), SafariLanguage::english()}), regionalEnglish());
}

TEST(SafariMenus, ProfilesAreListedInTheMenusOrderWithThoseThatComeTwice)
{
    EXPECT_EQ(SafariMenus::profileNames(fileMenu(), SafariLanguage::english()),
              QStringList({u"Work"_s, u"Personal"_s, u"Work"_s}));
    EXPECT_EQ(SafariMenus::profileNames({u"Neues Fenster"_s, u"Neues Fenster \u201EArbeit\u201C"_s}, german()),
              QStringList{u"Arbeit"_s});
    EXPECT_EQ(SafariMenus::profileNames(fileMenu(), german()), QStringList());
    EXPECT_EQ(SafariMenus::profileNames({}, german()), QStringList());
}

TEST(SafariMenus, TheItemsOfASubmenuAreReadLikeTheMenus)
{
    EXPECT_EQ(SafariMenus::profileNames({u"New Work Window"_s, u"New Home Window"_s}, SafariLanguage::english()),
              QStringList({u"Work"_s, u"Home"_s}));
}

TEST(SafariMenus, APositionCountsEveryItem)
{
    const std::vector<std::pair<QString, Position>> rows{
        {u"Work"_s, 4},      {u"Personal"_s, 5}, {u"work"_s, nullopt}, {u"Work "_s, nullopt},
        {u"Wor"_s, nullopt}, {u""_s, nullopt},   {u".*"_s, nullopt},   {u"New Window"_s, nullopt},
    };
    for (const auto &[profile, position] : rows)
        EXPECT_EQ(SafariMenus::position(profile, fileMenu(), SafariLanguage::english()), position)
            << profile.toStdString();
    EXPECT_EQ(SafariMenus::position(u"Work"_s, fileMenu(), german()), nullopt);
    EXPECT_EQ(SafariMenus::position(u"Work"_s, {}, SafariLanguage::english()), nullopt);
    EXPECT_EQ(SafariMenus::position(u"Work"_s, {u"New Work Window"_s}, SafariLanguage::english()), 1);
}

TEST(SafariMenus, EveryProfileThatIsListedHasAPosition)
{
    const QStringList names{
        u"Work"_s,       u"(.+)"_s, u"\"x\""_s,       u"a\\b"_s, u"%@"_s,         u"Window"_s,           u" "_s,
        u"\u200FWork"_s, u"$1"_s,   u"New Private"_s, u"^$"_s,   u"New %@ Win"_s, u"\U0001F600\u200D"_s, u"tell me"_s};
    QStringList titles{u"New Window"_s, u""_s};
    for (const QString &name : names)
        titles.append(u"New "_s + name + u" Window"_s);
    EXPECT_EQ(SafariMenus::profileNames(titles, SafariLanguage::english()), names);
    for (qsizetype index = 0; index < names.size(); ++index)
        EXPECT_EQ(SafariMenus::position(names[index], titles, SafariLanguage::english()), index + 3);
}

TEST(SafariMenus, AProfileIsFoundThoughItsAccentsAreWrittenInAnotherWay)
{
    const QStringList titles{u"New Cafe\u0301 Window"_s};
    EXPECT_EQ(SafariMenus::position(u"Caf\u00E9"_s, titles, SafariLanguage::english()), 1);
    EXPECT_EQ(SafariMenus::position(u"Cafe"_s, titles, SafariLanguage::english()), nullopt);
    EXPECT_EQ(SafariMenus::profileNames(titles, SafariLanguage::english()), QStringList{u"Cafe\u0301"_s});
}

TEST(SafariMenus, ABrokenFormatMakesAProfileOfEveryItem)
{
    SafariLanguage language = SafariLanguage::english();
    language.newProfileWindowFormat = u"\xD800%@"_s;
    EXPECT_EQ(SafariMenus::profileNames({u"New Window"_s, u""_s, u"New Tab"_s}, language), QStringList{u"New Tab"_s});
    EXPECT_EQ(SafariMenus::position(u"New Tab"_s, {u"New Window"_s, u""_s, u"New Tab"_s}, language), 3);
}

TEST(SafariMenus, LinesBecomeItems)
{
    const std::vector<std::pair<QString, QStringList>> rows{
        {u"a\n\nb\n\n"_s, {u"a"_s, u""_s, u"b"_s}},
        {u"a\nb\n"_s, {u"a"_s, u"b"_s}},
        {u"a\nb"_s, {u"a"_s, u"b"_s}},
        {u"\n\na"_s, {u""_s, u""_s, u"a"_s}},
        {u"a\r\nb\r\n"_s, {u"a\r"_s, u"b\r"_s}},
        {u"a\rb\u2028c\n"_s, {u"a\rb\u2028c"_s}},
        {u"  a \n \n"_s, {u"  a "_s, u" "_s}},
        {u""_s, {}},
        {u"\n"_s, {}},
        {u"\n\n\n"_s, {}},
    };
    for (const auto &[lines, items] : rows)
        EXPECT_EQ(SafariMenus::items(lines), items) << lines.toStdString();
}

TEST(SafariMenus, AListScriptPrintsItsExpressionsItems)
{
    const QString expected = uR"(on listItems()
    name of every "%1"
end listItems
set out to ""
repeat with anItem in listItems()
    set out to out & (anItem as text) & linefeed
end repeat
return out)"_s;
    EXPECT_EQ(SafariMenus::listScript(u"name of every \"%1\""_s), expected);
    EXPECT_EQ(SafariMenus::listScript(u""_s).section(u'\n', 0, 2), u"on listItems()\n    \nend listItems"_s);
}

} // namespace
} // namespace vantrel
