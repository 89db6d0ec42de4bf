#include "Vantrel/SavedState.h"

#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QMap>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {

void PrintTo(const SavedState &state, std::ostream *stream)
{
    *stream << "profiles " << test::notation(state.profiles).toStdString() << ", hidden ";
    printDebugForm(state.hidden, stream);
    *stream << ", names ";
    printDebugForm(state.customNames, stream);
    *stream << ", searched ";
    printDebugForm(state.searchedSafari, stream);
}

namespace {

using Kind = DecodingError::Kind;

using Members = QMap<QByteArray, QByteArray>;

const Members emptyMembers{{"profiles", "[]"}, {"hidden", "[]"}, {"customNames", "{}"}, {"searchedSafari", "[]"}};

QByteArray text(const Members &members)
{
    QByteArrayList parts;
    for (auto member = members.constBegin(); member != members.constEnd(); ++member)
        parts.append('"' + member.key() + "\": " + member.value());
    return '{' + parts.join(", ") + '}';
}

/// The empty state with one member given another value.
QByteArray with(const QByteArray &member, const QByteArray &value)
{
    Members members = emptyMembers;
    members.insert(member, value);
    return text(members);
}

QByteArray without(const QByteArray &member)
{
    Members members = emptyMembers;
    members.remove(member);
    return text(members);
}

/// What is wrong, and where: "typeMismatch hidden[1]".
QString problem(const QByteArray &json)
{
    const auto state = SavedState::decode(json);
    if (state)
        return u"none"_s;
    EXPECT_FALSE(state.error().debugDescription.isEmpty()) << json.constData();
    const char *kinds[]{"keyNotFound", "typeMismatch", "valueNotFound", "dataCorrupted"};
    return QLatin1StringView(kinds[static_cast<size_t>(state.error().kind)]) + u' ' + state.error().path;
}

TEST(SavedState, AllFourMembersAreRead)
{
    const auto state = SavedState::decode(R"({
        "searchedSafari": ["com.apple.Safari"],
        "customNames": {"com.google.Chrome/chromium:1": "Wörk", "com.google.Chrome/private": ""},
        "hidden": ["com.google.Chrome/chromium:2", "com.google.Chrome/private", "com.google.Chrome/private"],
        "profiles": [
            {"browserBundleID": "com.google.Chrome", "name": "2", "target": {"chromium": {"folder": "2"}}},
            {"browserBundleID": "com.google.Chrome", "name": "", "target": {"chromiumPrivate": {}}},
            {"browserBundleID": "org.mozilla.firefox", "name": "x", "target": {"firefox": {"path": "x"}}},
            {"browserBundleID": "com.google.Chrome", "name": "1", "target": {"chromium": {"folder": "1"}},
             "avatarPNG": "AQID"}
        ]})");
    ASSERT_TRUE(state.has_value()) << state.error().message().toStdString();
    SavedState expected{
        .profiles = test::profiles(u"c:2 c:private f:x c:1"_s),
        .hidden = {u"com.google.Chrome/chromium:2"_s, u"com.google.Chrome/private"_s},
        .customNames = {{u"com.google.Chrome/chromium:1"_s, u"Wörk"_s}, {u"com.google.Chrome/private"_s, QString()}},
        .searchedSafari = {u"com.apple.Safari"_s},
    };
    expected.profiles.last().avatarPNG = "\x01\x02\x03";
    EXPECT_EQ(*state, expected);
}

TEST(SavedState, AnEmptyStateIsThatOfAFirstStart)
{
    EXPECT_EQ(SavedState::decode(text(emptyMembers)), SavedState());
}

TEST(SavedState, OtherMembersAreIgnored)
{
    EXPECT_EQ(SavedState::decode(R"({"version": 2, "profiles": [], "hidden": [], "customNames": {},)"
                                 R"( "searchedSafari": [], "more": {}})"),
              SavedState());
}

TEST(SavedState, EachMemberMustBeThere)
{
    for (const QByteArray member : {"profiles", "hidden", "customNames", "searchedSafari"}) {
        EXPECT_EQ(problem(without(member)), u"keyNotFound "_s) << member.constData();
        const auto state = SavedState::decode(without(member));
        ASSERT_FALSE(state.has_value());
        EXPECT_TRUE(state.error().message().contains(QString::fromLatin1(member))) << member.constData();
    }
    EXPECT_EQ(problem("{}"), u"keyNotFound "_s);
}

TEST(SavedState, EachMemberMustBeOfItsType)
{
    for (const QByteArray member : {"profiles", "hidden", "customNames", "searchedSafari"}) {
        const QString place = QString::fromLatin1(member);
        const QByteArray other = member == "customNames" ? "[]" : "{}";
        for (const QByteArray &value : {QByteArray("0"), QByteArray("\"text\""), QByteArray("true"), other})
            EXPECT_EQ(problem(with(member, value)), u"typeMismatch "_s + place) << value.constData();
        EXPECT_EQ(problem(with(member, "null")), u"valueNotFound "_s + place);
    }
}

TEST(SavedState, EachElementMustBeOfItsType)
{
    const std::vector<std::tuple<QByteArray, QByteArray, QString>> rows{
        {"hidden", R"(["a", 1])", u"typeMismatch hidden[1]"_s},
        {"hidden", R"([null, "a"])", u"valueNotFound hidden[0]"_s},
        {"searchedSafari", R"(["a", "b", []])", u"typeMismatch searchedSafari[2]"_s},
        {"searchedSafari", R"([false])", u"typeMismatch searchedSafari[0]"_s},
        {"customNames", R"({"a": "A", "b": 1})", u"typeMismatch customNames.b"_s},
        {"customNames", R"({"com.google.Chrome/chromium:Profile 1": null})",
         u"valueNotFound customNames.com.google.Chrome/chromium:Profile 1"_s},
        {"customNames", R"({"a": {}})", u"typeMismatch customNames.a"_s},
    };
    for (const auto &[member, value, expected] : rows)
        EXPECT_EQ(problem(with(member, value)), expected) << value.constData();
}

TEST(SavedState, EveryProfileMustBeReadable)
{
    const QByteArray good = R"({"browserBundleID": "b", "name": "n", "target": {"chromium": {"folder": "f"}}})";
    const std::vector<std::pair<QByteArray, QString>> rows{
        {"0", u"typeMismatch profiles[1]"_s},
        {"null", u"valueNotFound profiles[1]"_s},
        {"{}", u"keyNotFound profiles[1]"_s},
        {R"({"browserBundleID": 1, "name": "n", "target": {"chromium": {"folder": "f"}}})",
         u"typeMismatch profiles[1].browserBundleID"_s},
        {R"({"browserBundleID": "b", "name": null, "target": {"chromium": {"folder": "f"}}})",
         u"valueNotFound profiles[1].name"_s},
        {R"({"browserBundleID": "b", "name": "n", "target": {"chromium": {"folder": 7}}})",
         u"typeMismatch profiles[1].target.chromium.folder"_s},
        {R"({"browserBundleID": "b", "name": "n", "target": {"other": {}}})", u"typeMismatch profiles[1].target"_s},
        {R"({"browserBundleID": "b", "name": "n", "target": {"chromium": {"folder": "f"}}, "avatarPNG": "?"})",
         u"dataCorrupted profiles[1].avatarPNG"_s},
    };
    for (const auto &[profile, expected] : rows)
        EXPECT_EQ(problem(with("profiles", '[' + good + ',' + profile + ']')), expected) << profile.constData();
    EXPECT_EQ(problem(with("profiles", '[' + good + ']')), u"none"_s);
}

TEST(SavedState, WhatIsNoJsonObjectIsDamaged)
{
    const QByteArray good = text(emptyMembers);
    const QByteArrayList contents{
        {}, " \n", "profiles", "{", good.chopped(1), good + '}', QByteArray(4, '\0'), "\xff\xfe{}", "{'profiles': []}"};
    for (const QByteArray &json : contents)
        EXPECT_EQ(problem(json), u"dataCorrupted "_s) << json.constData();
    EXPECT_EQ(problem("[]"), u"typeMismatch "_s);
    EXPECT_EQ(problem('[' + good + ']'), u"typeMismatch "_s);
}

TEST(SavedState, AFileIsReadWhole)
{
    const test::TemporaryFolder folder;
    QByteArray hidden;
    for (int number = 0; number < 20000; ++number)
        hidden += (number == 0 ? "\"" : ",\"") + QByteArray::number(number) + '"';
    const auto state = SavedState::read(folder.write(u"profiles.json"_s, with("hidden", '[' + hidden + ']')));
    ASSERT_TRUE(state.has_value());
    EXPECT_EQ(state->hidden.size(), 20000);
}

TEST(SavedState, ADamagedFileIsAnError)
{
    const test::TemporaryFolder folder;
    for (const QByteArray &content : {QByteArray(), QByteArray("half a {"), without("searchedSafari")})
        EXPECT_FALSE(SavedState::read(folder.write(u"profiles.json"_s, content)).has_value()) << content.constData();
}

TEST(SavedState, WithoutAFileItIsTheFirstStart)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(SavedState::read(folder.path(u"missing.json"_s)), SavedState());
    EXPECT_EQ(SavedState::read(folder.path(u"missing/missing.json"_s)), SavedState());
    EXPECT_EQ(SavedState::read(folder.makeFolder(u"folder.json"_s)), SavedState());
    EXPECT_EQ(SavedState::read(folder.makePipe(u"pipe.json"_s)), SavedState());
    EXPECT_EQ(SavedState::read(folder.link(u"dangling.json"_s, u"/no/such/file"_s)), SavedState());
    EXPECT_EQ(SavedState::read({}), SavedState());
}

TEST(SavedState, AFileThatMayNotBeReadIsTheFirstStart)
{
    const test::TemporaryFolder folder;
    const QString path = folder.write(u"profiles.json"_s, "damaged");
    const auto answer = [&path] {
        const auto state = SavedState::read(path);
        return !state ? u"an error"_s : *state == SavedState() ? u"the first start"_s : u"a state"_s;
    };
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"an error"_s);
    const test::ClosedPath closed(path);
    EXPECT_EQ(test::answerOfUnprivilegedProcess(answer), u"the first start"_s);
}

TEST(SavedState, ALinkToTheFileIsFollowed)
{
    const test::TemporaryFolder folder;
    folder.write(u"real.json"_s, with("hidden", R"(["a"])"));
    const auto state = SavedState::read(folder.link(u"profiles.json"_s, folder.path(u"real.json"_s)));
    ASSERT_TRUE(state.has_value());
    EXPECT_EQ(state->hidden, QSet<QString>{u"a"_s});
}

TEST(SavedState, TheFileLiesInTheUsersDataFolder)
{
    const auto pathWith = [](const char *dataHome) {
        return test::answerOfUnprivilegedProcess([dataHome] {
            qputenv("HOME", "/home/user");
            qputenv("XDG_DATA_HOME", dataHome);
            return SavedState::defaultPath();
        });
    };
    EXPECT_EQ(pathWith("/data"), u"/data/app.kestrune.Vantrel/profiles.json"_s);
    EXPECT_EQ(pathWith(""), u"/home/user/.local/share/app.kestrune.Vantrel/profiles.json"_s);
}

} // namespace
} // namespace vantrel
