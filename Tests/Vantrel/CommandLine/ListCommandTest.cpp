#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <clocale>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Chrome with the profiles Work and Home, Firefox with Fox.
class ListCommandTest : public test::CommandLineCase {
protected:
    ListCommandTest()
    {
        planted.plantChromium(test::chrome, u"Google Chrome"_s,
                              {{u"Default"_s, u"Work"_s}, {u"Profile 1"_s, u"Home"_s}});
        planted.plantFirefox(test::firefox, u"Firefox"_s, {{u"/p"_s, u"Fox"_s}});
    }

    static QStringList ids(const Answer &json)
    {
        QStringList ids;
        for (const QJsonValue &element : QJsonDocument::fromJson(json.results.toUtf8()).array())
            ids.append(element.toObject().value(u"id"_s).toString());
        return ids;
    }
};

/// Firefox's private window is hidden, Home is called "Privat", and the order is the user's.
const QByteArray savedState = R"({"searchedSafari": [], "hidden": ["org.mozilla.firefox/private"],
    "customNames": {"com.google.Chrome/chromium:Profile 1": "Privat"},
    "profiles": [
        {"browserBundleID": "org.mozilla.firefox", "name": "", "target": {"firefoxPrivate": {}}},
        {"browserBundleID": "org.mozilla.firefox", "name": "Fox", "target": {"firefox": {"path": "/p"}}},
        {"browserBundleID": "com.brave.Browser", "name": "Gone", "target": {"chromium": {"folder": "1"}}},
        {"browserBundleID": "com.google.Chrome", "name": "Home", "target": {"chromium": {"folder": "Profile 1"}}}
    ]})";

TEST_F(ListCommandTest, TitlesAndIdsStandInTwoColumns)
{
    EXPECT_EQ(run({u"list"_s}), done(u"Firefox – Fox                     org.mozilla.firefox/firefox:/p\n"
                                     "Firefox – Private Window          org.mozilla.firefox/private\n"
                                     "Google Chrome – Work              com.google.Chrome/chromium:Default\n"
                                     "Google Chrome – Home              com.google.Chrome/chromium:Profile 1\n"
                                     "Google Chrome – Incognito Window  com.google.Chrome/private\n"_s));
}

TEST_F(ListCommandTest, TheUsersOrderAndNamesCountAndHiddenProfilesDoNotShow)
{
    writeSavedState(savedState);
    EXPECT_EQ(run({u"list"_s}), done(u"Firefox – Fox                     org.mozilla.firefox/firefox:/p\n"
                                     "Google Chrome – Privat            com.google.Chrome/chromium:Profile 1\n"
                                     "Google Chrome – Work              com.google.Chrome/chromium:Default\n"
                                     "Google Chrome – Incognito Window  com.google.Chrome/private\n"_s));
}

TEST_F(ListCommandTest, HiddenProfilesAreMarkedWhenAllAreShown)
{
    writeSavedState(savedState);
    EXPECT_EQ(run({u"list"_s, u"--all"_s}),
              done(u"Firefox – Private Window          org.mozilla.firefox/private  (hidden)\n"
                   "Firefox – Fox                     org.mozilla.firefox/firefox:/p\n"
                   "Google Chrome – Privat            com.google.Chrome/chromium:Profile 1\n"
                   "Google Chrome – Work              com.google.Chrome/chromium:Default\n"
                   "Google Chrome – Incognito Window  com.google.Chrome/private\n"_s));
}

TEST_F(ListCommandTest, JsonHasTheMembersOfEachProfileInTheirOrder)
{
    writeSavedState(savedState);
    EXPECT_EQ(run({u"list"_s, u"--json"_s, u"--all"_s}).results.split(u'\n').sliced(0, 3),
              (QStringList{
                  u"["_s,
                  uR"({"id":"org.mozilla.firefox/private","browserBundleIdentifier":"org.mozilla.firefox",)"
                  R"("browser":"Firefox","family":"firefox","name":"","displayName":"Private Window","private":true,)"
                  R"("hidden":true,"link":"vantrel://?browserBundleIdentifier=org.mozilla.firefox&profileName=)"
                  R"(&profile=org.mozilla.firefox/private"},)"_s,
                  uR"({"id":"org.mozilla.firefox/firefox:/p","browserBundleIdentifier":"org.mozilla.firefox",)"
                  R"("browser":"Firefox","family":"firefox","name":"Fox","displayName":"Fox","private":false,)"
                  R"("hidden":false,"link":"vantrel://?browserBundleIdentifier=org.mozilla.firefox&profileName=Fox)"
                  R"(&profile=org.mozilla.firefox/firefox:/p"},)"_s,
              }));
}

TEST_F(ListCommandTest, JsonShowsHiddenProfilesOnlyWhenAllAreAskedFor)
{
    writeSavedState(savedState);
    const QStringList shown{u"org.mozilla.firefox/firefox:/p"_s, u"com.google.Chrome/chromium:Profile 1"_s,
                            u"com.google.Chrome/chromium:Default"_s, u"com.google.Chrome/private"_s};
    EXPECT_EQ(ids(run({u"list"_s, u"--json"_s})), shown);
    EXPECT_EQ(ids(run({u"list"_s, u"--all"_s, u"--json"_s})), QStringList(u"org.mozilla.firefox/private"_s) + shown);
}

TEST_F(ListCommandTest, JsonTellsTheBrowsersNameOfAProfileFromTheUsersOne)
{
    writeSavedState(savedState);
    const Answer answer = run({u"list"_s, u"--json"_s});
    const QJsonObject home = QJsonDocument::fromJson(answer.results.toUtf8()).array().at(1).toObject();
    EXPECT_EQ(home.value(u"name"_s).toString(), u"Home"_s);
    EXPECT_EQ(home.value(u"displayName"_s).toString(), u"Privat"_s);
    EXPECT_EQ(home.value(u"family"_s).toString(), u"chromium"_s);
    EXPECT_EQ(home.value(u"browser"_s).toString(), u"Google Chrome"_s);
}

TEST_F(ListCommandTest, AControlCharacterIsShownAndNotObeyed)
{
    planted.plantChromium(test::chrome, u"Chr\tome"_s, {{u"Default"_s, u"new\nline \x1b[31m"_s}});
    const QStringList lines = run({u"list"_s}).results.split(u'\n');
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines.first(), u"Chr\\tome – new\\nline \\x1b[31m  com.google.Chrome/chromium:Default"_s);
    planted.plantFirefox(test::firefox, u"Firefox"_s, {{u"/a\tb"_s, u"Fox"_s}});
    EXPECT_TRUE(run({u"list"_s}).results.contains(u"org.mozilla.firefox/firefox:/a\\tb\n"_s));
}

TEST_F(ListCommandTest, WideCharactersTakeTwoColumns)
{
    ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
    planted.workspace.uninstall(test::firefox);
    planted.plantChromium(test::chrome, u"C"_s, {{u"Default"_s, u"\u65e5\u672c\u8a9e"_s}});
    const Answer answer = run({u"list"_s});
    std::setlocale(LC_CTYPE, "C");
    EXPECT_EQ(answer, done(u"C – \u65e5\u672c\u8a9e            com.google.Chrome/chromium:Default\n"
                           "C – Profile 1         com.google.Chrome/chromium:Profile 1\n"
                           "C – Incognito Window  com.google.Chrome/private\n"_s));
}

TEST_F(ListCommandTest, ABrowserThatCannotBeReadFailsAfterEverythingElse)
{
    const QString path = planted.plantUnreadable(test::brave, u"Brave"_s);
    const Answer answer = run({u"list"_s});
    EXPECT_EQ(answer.status, ExitStatus::failed);
    EXPECT_EQ(answer.results.count(u'\n'), 6);
    EXPECT_TRUE(answer.results.contains(u"com.brave.Browser/private"_s));
    EXPECT_EQ(answer.messages, u"vantrel: Brave's profiles can't be read: “%1”: Not a directory.\n"_s.arg(path));
    EXPECT_EQ(run({u"list"_s, u"--json"_s}).status, ExitStatus::failed);
    EXPECT_EQ(ids(run({u"list"_s, u"--json"_s})).size(), 6);
}

TEST_F(ListCommandTest, EachBrowserThatCannotBeReadIsNamed)
{
    const QString brave = planted.plantUnreadable(test::brave, u"Br\tave"_s);
    const QString zen = planted.plantUnreadable(test::zen, u"Zen"_s);
    EXPECT_EQ(run({u"list"_s}).messages,
              u"vantrel: Br\\tave's profiles can't be read: “%1”: Not a directory.\n"
              "vantrel: Zen's profiles can't be read: “%2”: Not a directory.\n"_s.arg(brave, zen));
}

TEST_F(ListCommandTest, ADamagedSavedStateIsToldAndNoFailure)
{
    writeSavedState("{}");
    const Answer answer = run({u"list"_s});
    EXPECT_EQ(answer.status, ExitStatus::done);
    EXPECT_EQ(answer.results.count(u'\n'), 5);
    EXPECT_EQ(answer.messages, u"vantrel: Saved profiles unreadable, going on without your order and names: %1: "
                               "The member “profiles” is missing.\n"_s.arg(planted.folder.path(u"profiles.json"_s)));
}

TEST_F(ListCommandTest, WithoutBrowsersTheListIsEmptyAndSaysWhereToLook)
{
    planted.workspace.uninstall(test::chrome);
    planted.workspace.uninstall(test::firefox);
    writeSavedState(savedState);
    const QString message =
        u"vantrel: No browser Vantrel knows is installed. “vantrel doctor” tells where it looked.\n"_s;
    EXPECT_EQ(run({u"list"_s}), (Answer{ExitStatus::done, {}, message}));
    EXPECT_EQ(run({u"list"_s, u"--json"_s}), (Answer{ExitStatus::done, u"[]\n"_s, message}));
}

TEST_F(ListCommandTest, SafariComesFirstWhereThereIsOne)
{
    planted.workspace.install(test::safari, u"Safari"_s);
    const QStringList listed = ids(run({u"list"_s, u"--json"_s}));
    ASSERT_EQ(listed.size(), 6);
    EXPECT_EQ(listed.first(), u"com.apple.Safari/private"_s);
    EXPECT_TRUE(run({u"list"_s}).results.startsWith(u"Safari – Private Window "_s));
}

} // namespace
} // namespace vantrel
