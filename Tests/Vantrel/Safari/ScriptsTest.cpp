#include "Vantrel/Safari/Scripts.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

/// A language whose texts need to be escaped, and its application.
const SafariLanguage odd{u"xx"_s, u"F\"i\\le"_s, u"E"_s, u"New \\\"Window\""_s, u"P"_s, u"%@"_s};
const QString name = u"Sa\"fa\\ri"_s;
const QString escapedName = uR"(Sa\"fa\\ri)"_s;
const QString escapedFile = uR"(F\"i\\le)"_s;
const QString escapedNewWindow = uR"(New \\\"Window\")"_s;

QString list(const QString &expression)
{
    return u"on listItems()\n    "_s + expression +
           u"\nend listItems\nset out to \"\"\nrepeat with anItem in listItems()\n"
           "    set out to out & (anItem as text) & linefeed\nend repeat\nreturn out"_s;
}

TEST(SafariScripts, MenusAreReadAsLists)
{
    EXPECT_EQ(menuBarScript(u"Safari"_s),
              list(u"tell application \"System Events\" to get name of every menu bar item of menu bar 1 of process "
                   "\"Safari\""_s));
    EXPECT_EQ(fileMenuScript(u"Safari"_s, u"Ablage"_s),
              list(u"tell application \"System Events\" to get the name of every menu item of menu 1 of menu bar item "
                   "\"Ablage\" of menu bar 1 of process \"Safari\""_s));
    EXPECT_EQ(profileSubmenuScript(u"Safari"_s, SafariLanguage::english()),
              list(u"tell application \"System Events\" to tell process \"Safari\" to tell menu item \"New Window\" of "
                   "menu 1 of menu bar item \"File\" of menu bar 1 to get the name of every menu item of menu 1"_s));
}

TEST(SafariScripts, ReadingEscapesTextsAndName)
{
    EXPECT_EQ(menuBarScript(name),
              list(u"tell application \"System Events\" to get name of every menu bar item of menu "
                   "bar 1 of process \""_s +
                   escapedName + u'"'));
    EXPECT_EQ(
        fileMenuScript(name, odd.file),
        list(u"tell application \"System Events\" to get the name of every menu item of menu 1 of menu bar item \""_s +
             escapedFile + u"\" of menu bar 1 of process \""_s + escapedName + u'"'));
    EXPECT_EQ(profileSubmenuScript(name, odd),
              list(u"tell application \"System Events\" to tell process \""_s + escapedName +
                   u"\" to tell menu item \""_s + escapedNewWindow + u"\" of menu 1 of menu bar item \""_s +
                   escapedFile + u"\" of menu bar 1 to get the name of every menu item of menu 1"_s));
}

TEST(SafariScripts, AnItemIsClickedInItsMenu)
{
    EXPECT_EQ(
        clickItemScript(u"Safari"_s, 12345, SafariLanguage::english(), MenuLayout::flat),
        u"tell application \"Safari\" to activate\ntell application \"System Events\" to tell process \"Safari\" to "
        "click menu item 12345 of menu 1 of menu bar item \"File\" of menu bar 1\ndelay 0.1"_s);
    EXPECT_EQ(
        clickItemScript(u"Safari"_s, 2, SafariLanguage::english(), MenuLayout::submenu),
        u"tell application \"Safari\" to activate\ntell application \"System Events\" to tell process \"Safari\" to "
        "click menu item 2 of menu 1 of menu item \"New Window\" of menu 1 of menu bar item \"File\" of menu bar "
        "1\ndelay 0.1"_s);
}

TEST(SafariScripts, ClickingEscapesTextsAndLeavesTheNameAsItIs)
{
    EXPECT_EQ(clickItemScript(name, 2, odd, MenuLayout::submenu),
              u"tell application \""_s + name +
                  u"\" to activate\ntell application \"System Events\" to tell process \""_s + name +
                  u"\" to click menu item 2 of menu 1 of menu item \""_s + escapedNewWindow +
                  u"\" of menu 1 of menu bar item \""_s + escapedFile + u"\" of menu bar 1\ndelay 0.1"_s);
}

QString inFront(const QString &action)
{
    return u"tell application \"Safari\" to activate\ntell application \"System Events\" to tell process \"Safari\" to "_s +
           action;
}

TEST(SafariScripts, TheFirstTenPlacesHaveKeys)
{
    EXPECT_EQ(openPlaceScript(u"Safari"_s, 0, u"File"_s, PlaceMeans::keys),
              inFront(u"keystroke \"n\" using {command down}\ndelay 0.1"_s));
    for (int place = 1; place <= 9; ++place) {
        EXPECT_EQ(openPlaceScript(u"Safari"_s, place, u"File"_s, PlaceMeans::keys),
                  inFront(u"keystroke \"%1\" using {shift down, command down, option down}\ndelay 0.1"_s.arg(place)));
    }
}

TEST(SafariScripts, OtherPlacesAreClickedAndAllCanBe)
{
    const QString click = u"click menu item %1 of menu 1 of menu bar item \"File\" of menu bar 1\ndelay 0.1"_s;
    EXPECT_EQ(openPlaceScript(u"Safari"_s, 10, u"File"_s, PlaceMeans::keys), inFront(click.arg(11)));
    EXPECT_EQ(openPlaceScript(u"Safari"_s, 12, u"File"_s, PlaceMeans::keys), inFront(click.arg(13)));
    EXPECT_EQ(openPlaceScript(u"Safari"_s, 0, u"File"_s, PlaceMeans::menuItem), inFront(click.arg(1)));
    EXPECT_EQ(openPlaceScript(u"Safari"_s, 3, u"File"_s, PlaceMeans::menuItem), inFront(click.arg(4)));
    EXPECT_TRUE(openPlaceScript(u"Safari"_s, 12, odd.file, PlaceMeans::keys).contains(escapedFile));
}

TEST(SafariScripts, WindowsWithoutAProfileAreKeysAlone)
{
    EXPECT_EQ(ordinaryWindowScript(u"Safari"_s), inFront(u"keystroke \"n\" using {command down}"_s));
    EXPECT_EQ(privateWindowScript(u"Safari"_s), inFront(u"keystroke \"n\" using {shift down, command down}"_s));
}

TEST(SafariScripts, WindowsAreAddressedByTheirIds)
{
    EXPECT_EQ(raiseWindowScript(u"Safari"_s, 1234567),
              u"tell application \"Safari\" to set index of window id 1234567 to 1"_s);
    EXPECT_EQ(closeWindowScript(u"Safari"_s, 1234567), u"tell application \"Safari\" to close window id 1234567"_s);
    EXPECT_EQ(raiseWindowScript(name, 7),
              u"tell application \""_s + escapedName + u"\" to set index of window id 7 to 1"_s);
    EXPECT_EQ(closeWindowScript(name, 7), u"tell application \""_s + name + u"\" to close window id 7"_s);
}

TEST(SafariScripts, AnyTextStaysWithinItsQuotes)
{
    for (const QString &text : test::oddTexts()) {
        const QString script = fileMenuScript(u"Safari"_s, text);
        const QString before = u"menu bar item \""_s;
        const qsizetype begin = script.indexOf(before) + before.size();
        QString unescaped;
        qsizetype place = begin;
        for (; place < script.size() && script[place] != u'"'; ++place) {
            if (script[place] == u'\\')
                ++place;
            unescaped += script[place];
        }
        EXPECT_EQ(unescaped, text);
        EXPECT_TRUE(script.sliced(place).startsWith(u"\" of menu bar 1 of process \"Safari\"\n"_s));
    }
}

} // namespace
} // namespace vantrel::Safari
