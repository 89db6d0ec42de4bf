#include "Tests/Vantrel/Safari/SafariSession.h"
#include "Vantrel/SavedState.h"
#include "VantrelKit/Safari/SafariMenus.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vantrel::Safari {
namespace {

using test::Scene;
using Kind = Scene::Trouble::Kind;

const QString alertTitle = u"The Profile Didn't Open / "_s;
const QString fileMenuPart = u"get the name of every menu item of menu 1 of"_s;

/// A language as the files that are written for these tests have it.
SafariLanguage language(const QString &code)
{
    const QString folder = QStringLiteral(VANTREL_SAFARI_LANGUAGES);
    const QList<SafariLanguage> all = SafariMenus::loadLanguages(QUrl::fromLocalFile(folder + u"/App/"_s),
                                                                 QUrl::fromLocalFile(folder + u"/Framework/"_s));
    const auto found = std::ranges::find(all, code, &SafariLanguage::code);
    EXPECT_NE(found, all.end()) << code.toStdString();
    return found == all.end() ? SafariLanguage() : *found;
}

Scene sceneWith(const QStringList &profiles, const SafariLanguage &language = SafariLanguage::english())
{
    Scene scene;
    scene.language = language;
    scene.profiles = profiles;
    scene.windows = {{.id = 7, .profile = u"(old)"_s, .tabs = {u"https://old.example/"_s}}};
    return scene;
}

QStringList readingScripts(const SafariLanguage &language, bool hasSubmenu)
{
    QStringList scripts{menuBarScript(u"Safari"_s), fileMenuScript(u"Safari"_s, language.file)};
    if (hasSubmenu)
        scripts.append(profileSubmenuScript(u"Safari"_s, language));
    return scripts;
}

class SafariInALanguage : public testing::TestWithParam<std::tuple<const char *, bool>> {
protected:
    test::SafariSession session_;
    SafariLanguage language_ = language(QString::fromLatin1(std::get<0>(GetParam())));
    bool hasSubmenu_ = std::get<1>(GetParam());
    /// The names of the profiles in any of the scripts that Safari runs in.
    QStringList names_{u"Personal"_s, u"عمل"_s, u"仕事 2"_s};
};

TEST_P(SafariInALanguage, ProfilesAreFoundAndOpened)
{
    Scene scene = sceneWith(names_, language_);
    scene.hasSubmenu = hasSubmenu_;
    session_.setScene(scene);
    EXPECT_EQ(session_.find(), names_);
    EXPECT_EQ(session_.takeScripts(), readingScripts(language_, hasSubmenu_));
    EXPECT_FALSE(session_.scene().isInFront);
    EXPECT_EQ(session_.log().takeLines(), QStringList(u"[Profiles] Found 3 Safari profiles"_s));

    session_.open(u"عمل"_s, {u"https://a.example/"_s, u"https://b.example/"_s});
    EXPECT_EQ(session_.alert().shown(), QStringList());
    const MenuLayout layout = hasSubmenu_ ? MenuLayout::submenu : MenuLayout::flat;
    EXPECT_EQ(session_.takeScripts(),
              readingScripts(language_, hasSubmenu_) + QStringList({clickItemScript(u"Safari"_s, 2, language_, layout),
                                                                    raiseWindowScript(u"Safari"_s, 1000)}));
    const QList<Scene::Window> windows = session_.scene().windows;
    ASSERT_EQ(windows.size(), 2);
    EXPECT_EQ(windows.first().profile, u"عمل"_s);
    EXPECT_EQ(windows.first().tabs, QStringList({u"https://a.example/"_s, u"https://b.example/"_s}));
    EXPECT_EQ(windows.first().currentTab, 1);
}

INSTANTIATE_TEST_SUITE_P(InEachLayout, SafariInALanguage,
                         testing::Combine(testing::Values("en", "de", "ja", "ar", "tr"), testing::Bool()));

class SafariEndToEnd : public testing::Test {
protected:
    void begin(const QStringList &profiles, const QList<Scene::Trouble> &troubles = {})
    {
        Scene scene = sceneWith(profiles);
        scene.troubles = troubles;
        session_.setScene(scene);
    }

    void change(const std::function<void(Scene &)> &change) const
    {
        Scene scene = session_.scene();
        change(scene);
        session_.setScene(scene);
    }

    [[nodiscard]] QString problem() { return session_.store().problems().value(test::safari); }
    [[nodiscard]] QStringList openWindows() const
    {
        QStringList profiles;
        for (const Scene::Window &window : session_.scene().windows)
            profiles.append(window.profile);
        return profiles;
    }

    test::SafariSession session_;
};

TEST_F(SafariEndToEnd, AnyNameThatStandsOnOneLineIsFoundAndOpened)
{
    QStringList names;
    for (const QString &text : test::oddTexts()) {
        if (!text.contains(QRegularExpression(u"[\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]"_s)))
            names.append(text);
    }
    ASSERT_GT(names.size(), 20);
    begin(names);
    EXPECT_EQ(session_.find(), names);
    const QStringList opened = names.filter(QRegularExpression(u"[\"\\\\$(^%]|^ $|^x+$"_s));
    ASSERT_GT(opened.size(), 7);
    for (const QString &name : opened) {
        session_.open(name);
        EXPECT_EQ(openWindows().first(), name);
    }
    EXPECT_EQ(session_.alert().shown(), QStringList());
}

TEST_F(SafariEndToEnd, ANameThatSafariDoesNotShowIsNamedAsItIs)
{
    begin({u"Work"_s});
    QStringList shown;
    for (const QString &name : {u"two\nlines\r\n"_s, u"\"A\" \\ \\\""_s, u".*(.+)[a-z]$"_s, u"%1 %@ %2"_s}) {
        session_.open(name);
        shown.append(alertTitle + Failure::noProfile(name).message);
        EXPECT_EQ(session_.takeScripts(), readingScripts(SafariLanguage::english(), false));
    }
    EXPECT_EQ(session_.alert().shown(), shown);
    EXPECT_EQ(openWindows(), QStringList(u"(old)"_s));
}

TEST_F(SafariEndToEnd, MenuTextsWithQuotesAndBackslashesReachTheScriptsAsTheyAre)
{
    const test::TemporaryFolder folder;
    folder.write(u"app/xx.lproj/MainMenu.strings"_s,
                 R"x("81.title" = "F\"i\\le (.+)"; "163.title" = "\\Edit\""; "82.title" = "New \\\"Window\" [a-z]*";
                     "CV2-YC-yYw.title" = "^P$";)x");
    folder.write(u"framework/xx.lproj/Localizable.strings"_s, R"x("New %@ Window" = "\"(%1$@)\" \\d+ [x]";)x");
    session_.setLanguages(QUrl::fromLocalFile(folder.path(u"app"_s)), QUrl::fromLocalFile(folder.path(u"framework"_s)));
    const SafariLanguage odd{u"xx"_s,  uR"x(F"i\le (.+))x"_s,     uR"x(\Edit")x"_s, uR"x(New \"Window" [a-z]*)x"_s,
                             u"^P$"_s, uR"x("(%1$@)" \d+ [x])x"_s};
    for (const bool hasSubmenu : {false, true}) {
        Scene scene = sceneWith({u"A \"b\\ (c)"_s, u".*"_s}, odd);
        scene.hasSubmenu = hasSubmenu;
        session_.setScene(scene);
        EXPECT_EQ(session_.find(), scene.profiles);
        session_.open(u".*"_s);
        EXPECT_EQ(openWindows(), QStringList({u".*"_s, u"(old)"_s}));
    }
    EXPECT_EQ(session_.alert().shown(), QStringList());
}

TEST_F(SafariEndToEnd, WhatWasFoundIsSavedWithItsPlaceAndThePrivateWindow)
{
    begin({u"Personal"_s, u"Work"_s});
    session_.find();
    const QList<Profile> expected{
        {test::safari, u"Personal"_s, ProfileTarget::safariProfile(u"Personal"_s, 0)},
        {test::safari, u"Work"_s, ProfileTarget::safariProfile(u"Work"_s, 1)},
        Profile::privateWindow(test::safari),
    };
    EXPECT_EQ(session_.store().profilesOf(test::safari), expected);
    EXPECT_EQ(session_.store().searchedSafari(), QSet<QString>{test::safari});
}

TEST_F(SafariEndToEnd, ASafariThatDoesNotRunIsStartedBehindOthersAndFound)
{
    begin({u"Work"_s});
    change([](Scene &scene) { scene.isRunning = false; });
    EXPECT_EQ(session_.find(), QStringList(u"Work"_s));
    EXPECT_TRUE(session_.scene().isRunning);
    EXPECT_FALSE(session_.scene().isInFront);
}

struct RefusalRow {
    const char *text;
    const Failure &(*failure)();
};

TEST_F(SafariEndToEnd, RefusalsEndTheSearchAtOnceAndKeepWhatWasKnown)
{
    begin({u"Work"_s});
    session_.find();
    const std::vector<RefusalRow> rows{
        {"35:40: execution error: Not authorized to send Apple events to System Events. (-1743)", &Failure::automation},
        {"execution error: osascript is not allowed assistive access. (-1719)", &Failure::accessibility},
        {"execution error: not allowed (-25211)", &Failure::accessibility},
        {"(-25211) (-1743)", &Failure::automation},
    };
    for (const RefusalRow &row : rows) {
        const QString text = QString::fromLatin1(row.text);
        for (const QString &part : {u"menu bar item of menu bar 1 of process"_s, fileMenuPart}) {
            begin({u"Other"_s}, {{.part = part, .text = text}});
            std::ignore = session_.log().takeLines();
            EXPECT_EQ(session_.find(), QStringList(u"Work"_s));
            EXPECT_EQ(problem(), row.failure().message);
            EXPECT_EQ(session_.takeScripts().size(), part == fileMenuPart ? 2 : 1);
            EXPECT_EQ(session_.log().takeLines(),
                      QStringList({u"[ScriptingErrors] error: AppleScript failed: "_s + text,
                                   u"[Profiles] error: Safari's profiles couldn't be read: "_s + problem()}));
        }
    }
    begin({u"Other"_s});
    EXPECT_EQ(session_.find(), QStringList(u"Other"_s));
    EXPECT_EQ(problem(), QString());
}

TEST_F(SafariEndToEnd, AMenuThatComesLateIsFound)
{
    begin({u"Work"_s}, {{.part = u"menu bar item of menu bar 1 of process"_s, .kind = Kind::silence, .times = 9},
                        {.part = fileMenuPart, .kind = Kind::error, .times = 4}});
    EXPECT_EQ(session_.find(), QStringList(u"Work"_s));
    EXPECT_EQ(session_.takeScripts().size(), 10 + 5);
    EXPECT_EQ(session_.clock().takeSleeps(), QList<int>(9, 50) + QList<int>(4, 200));
}

TEST_F(SafariEndToEnd, AMenuThatStaysEmptyIsAProblem)
{
    begin({u"Work"_s}, {{.part = fileMenuPart, .kind = Kind::silence, .times = 5}});
    EXPECT_EQ(session_.find(), QStringList());
    EXPECT_EQ(problem(), u"Vantrel could not read Safari's File menu."_s);
    EXPECT_EQ(session_.takeScripts().size(), 1 + 5);
}

TEST_F(SafariEndToEnd, AHangIsATimeOutAndNotTriedAgain)
{
    // Enough for the scripts that come before, on any machine.
    session_.setScriptLimit(5s);
    begin({u"Work"_s}, {{.part = fileMenuPart, .kind = Kind::hang}});
    EXPECT_EQ(session_.find(), QStringList());
    EXPECT_EQ(problem(), Failure::timeOut().message);
    EXPECT_EQ(session_.takeScripts().size(), 2);
}

TEST_F(SafariEndToEnd, MuchOutputAndBytesThatAreNoTextDoNoHarm)
{
    for (const Kind kind : {Kind::flood, Kind::garbage}) {
        begin({u"Personal"_s, u"Work"_s}, {{.part = fileMenuPart, .kind = kind}});
        EXPECT_EQ(session_.find(), QStringList({u"Personal"_s, u"Work"_s}));
        EXPECT_EQ(problem(), QString());
    }
}

TEST_F(SafariEndToEnd, AWindowThatComesLateGetsTheLinks)
{
    begin({u"Work"_s});
    change([](Scene &scene) { scene.windowDelay = 20; });
    session_.open(u"Work"_s, {u"https://a.example/"_s});
    EXPECT_EQ(session_.scene().windows.first().tabs, QStringList(u"https://a.example/"_s));
    EXPECT_EQ(session_.clock().takeSleeps(), QList<int>(20, 100));
}

TEST_F(SafariEndToEnd, AClickThatWasLostIsRepeated)
{
    begin({u"Work"_s});
    change([](Scene &scene) { scene.deafClicks = 1; });
    session_.open(u"Work"_s);
    EXPECT_EQ(openWindows(), QStringList({u"Work"_s, u"(old)"_s}));
    EXPECT_EQ(session_.takeScripts().filter(u"to click"_s).size(), 2);
}

TEST_F(SafariEndToEnd, AWindowThatNeverComesIsTold)
{
    begin({u"Work"_s});
    change([](Scene &scene) { scene.deafClicks = 100; });
    session_.open(u"Work"_s, {u"https://a.example/"_s});
    EXPECT_EQ(session_.alert().shown(), QStringList(alertTitle + Failure::windowNotOpened().message));
    EXPECT_EQ(session_.takeScripts().filter(u"to click"_s).size(), 3);
    EXPECT_EQ(session_.scene().windows.first().tabs, QStringList(u"https://old.example/"_s));
}

TEST_F(SafariEndToEnd, WithoutAMenuTheStoredPlaceIsPressed)
{
    begin({u"Personal"_s, u"A"_s, u"B"_s, u"Work"_s});
    session_.find();
    std::ignore = session_.takeScripts();
    change([](Scene &scene) { scene.troubles = {{.part = fileMenuPart, .kind = Kind::silence, .times = 5}}; });
    session_.open(u"Work"_s);
    EXPECT_EQ(openWindows(), QStringList({u"Work"_s, u"(old)"_s}));
    EXPECT_EQ(session_.takeScripts().sliced(6),
              QStringList({openPlaceScript(u"Safari"_s, 3, u"File"_s, PlaceMeans::keys),
                           raiseWindowScript(u"Safari"_s, 1000)}));
}

TEST_F(SafariEndToEnd, ASafariThatDoesNotRunShowsTheProfileAlone)
{
    begin({u"Work"_s});
    change([](Scene &scene) {
        scene.isRunning = false;
        scene.windows.clear();
    });
    session_.open(u"Work"_s);
    EXPECT_EQ(openWindows(), QStringList(u"Work"_s));
    EXPECT_EQ(session_.takeScripts().last(), closeWindowScript(u"Safari"_s, 1000));
}

TEST_F(SafariEndToEnd, APrivateWindowTakesLinks)
{
    begin({u"Work"_s});
    session_.openPrivate({u"https://a.example/"_s});
    EXPECT_EQ(openWindows(), QStringList({u"(private)"_s, u"(old)"_s}));
    EXPECT_EQ(session_.scene().windows.first().tabs, QStringList(u"https://a.example/"_s));
    EXPECT_EQ(session_.takeScripts(),
              QStringList({privateWindowScript(u"Safari"_s), raiseWindowScript(u"Safari"_s, 1000)}));
}

} // namespace
} // namespace vantrel::Safari
