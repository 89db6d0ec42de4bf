#include "VantrelKit/ProfileJson.h"

#include "Tests/VantrelKit/Samples.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = DecodingError::Kind;

constexpr auto wrongCount = "Invalid number of keys found, expected one.";

/// Any JSON value out of its text.
QJsonValue parsed(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson("[" + json + "]");
    EXPECT_TRUE(document.isArray()) << json.toStdString();
    return document.array().at(0);
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// Each case with its saved form.
const std::vector<std::pair<ProfileTarget, QByteArray>> &cases()
{
    static const std::vector<std::pair<ProfileTarget, QByteArray>> rows{
        {ProfileTarget::safariProfile(u"Work"_s, 1), R"({"safariProfile": {"name": "Work", "index": 1}})"},
        {ProfileTarget::safariProfile(u""_s, -1), R"({"safariProfile": {"name": "", "index": -1}})"},
        {ProfileTarget::safariPrivate(), R"({"safariPrivate": {}})"},
        {ProfileTarget::chromium(u"Default"_s), R"({"chromium": {"folder": "Default"}})"},
        {ProfileTarget::chromiumPrivate(), R"({"chromiumPrivate": {}})"},
        {ProfileTarget::firefox(u"/a/b.c"_s), R"({"firefox": {"path": "/a/b.c"}})"},
        {ProfileTarget::firefoxPrivate(), R"({"firefoxPrivate": {}})"},
    };
    return rows;
}

QJsonObject savedProfile()
{
    return parsed(
               R"({"browserBundleID": "com.google.Chrome", "name": "Work", "target": {"chromium": {"folder": "x"}}})")
        .toObject();
}

template <typename Result>
void expectError(const Result &result, Kind kind, const QString &path, const std::string &about)
{
    ASSERT_FALSE(result) << about;
    EXPECT_EQ(result.error().kind, kind) << about;
    EXPECT_EQ(result.error().path, path) << about;
}

TEST(ProfileJson, EveryCaseHasItsForm)
{
    for (const auto &[target, json] : cases())
        EXPECT_EQ(toJson(target), parsed(json).toObject());
}

TEST(ProfileJson, EveryFormGivesItsCase)
{
    for (const auto &[target, json] : cases())
        EXPECT_EQ(profileTargetFromJson(parsed(json)).value(), target) << json.toStdString();
}

TEST(ProfileJson, EncodingAndDecodingKeepsAnyText)
{
    for (const QString &text : QStringList(u""_s) + test::oddTexts()) {
        for (const ProfileTarget &target :
             {ProfileTarget::safariProfile(text, 3), ProfileTarget::chromium(text), ProfileTarget::firefox(text)}) {
            const Profile profile{text, text, target, text.toUtf8()};
            EXPECT_EQ(profileFromJson(parsed(compact(toJson(profile)))).value(), profile);
        }
    }
}

TEST(ProfileJson, ATargetNeedsExactlyOneMemberThatIsACase)
{
    for (const QByteArray json :
         {R"({})", R"({"other": {}})", R"({"Chromium": {"folder": "x"}})",
          R"({"chromium": {"folder": "Default"}, "firefox": {"path": "x"}})",
          R"({"safariPrivate": {}, "chromiumPrivate": {}})", R"({"safariPrivate": {}, "chromium": null})",
          R"({"safariProfile": 1, "safariPrivate": 1, "chromium": 1, "chromiumPrivate": 1, "firefox": 1})"}) {
        const auto result = profileTargetFromJson(parsed(json));
        ASSERT_FALSE(result) << json.toStdString();
        EXPECT_EQ(result.error().kind, Kind::typeMismatch) << json.toStdString();
        EXPECT_EQ(result.error().debugDescription, QLatin1StringView(wrongCount)) << json.toStdString();
    }
}

TEST(ProfileJson, MembersThatAreNoCaseAreIgnored)
{
    EXPECT_EQ(
        profileTargetFromJson(parsed(R"({"a": 1, "chromium": {"folder": "x", "more": []}, "private": {}})")).value(),
        ProfileTarget::chromium(u"x"_s));
}

TEST(ProfileJson, ACaseWithoutPayloadIgnoresWhatItsObjectHolds)
{
    EXPECT_EQ(profileTargetFromJson(parsed(R"({"firefoxPrivate": {"path": 5, "x": null}})")).value(),
              ProfileTarget::firefoxPrivate());
}

TEST(ProfileJson, ThePayloadMustBeAnObject)
{
    for (const QByteArray name :
         {"safariProfile", "safariPrivate", "chromium", "chromiumPrivate", "firefox", "firefoxPrivate"}) {
        for (const QByteArray value : {"null", "true", "1", "\"x\"", "[]"}) {
            const QByteArray json = "{\"" + name + "\": " + value + "}";
            const Kind kind = value == "null" ? Kind::valueNotFound : Kind::typeMismatch;
            expectError(profileTargetFromJson(parsed(json)), kind, QString::fromLatin1(name), json.toStdString());
        }
    }
}

TEST(ProfileJson, AMissingOrMistypedFieldOfThePayloadFails)
{
    struct Row {
        QByteArray json;
        Kind kind;
        QString path;
    };
    const std::vector<Row> rows{
        {R"({"safariProfile": {}})", Kind::keyNotFound, u"safariProfile"_s},
        {R"({"safariProfile": {"name": "a"}})", Kind::keyNotFound, u"safariProfile"_s},
        {R"({"safariProfile": {"index": 1}})", Kind::keyNotFound, u"safariProfile"_s},
        {R"({"safariProfile": {"name": 1, "index": 1}})", Kind::typeMismatch, u"safariProfile.name"_s},
        {R"({"safariProfile": {"name": "a", "index": "1"}})", Kind::typeMismatch, u"safariProfile.index"_s},
        {R"({"safariProfile": {"name": "a", "index": true}})", Kind::typeMismatch, u"safariProfile.index"_s},
        {R"({"safariProfile": {"name": "a", "index": null}})", Kind::valueNotFound, u"safariProfile.index"_s},
        {R"({"safariProfile": {"name": "a", "index": 1.5}})", Kind::dataCorrupted, u"safariProfile.index"_s},
        {R"({"chromium": {}})", Kind::keyNotFound, u"chromium"_s},
        {R"({"chromium": {"path": "x"}})", Kind::keyNotFound, u"chromium"_s},
        {R"({"chromium": {"folder": 1}})", Kind::typeMismatch, u"chromium.folder"_s},
        {R"({"chromium": {"folder": ["x"]}})", Kind::typeMismatch, u"chromium.folder"_s},
        {R"({"firefox": {}})", Kind::keyNotFound, u"firefox"_s},
        {R"({"firefox": {"folder": "x"}})", Kind::keyNotFound, u"firefox"_s},
        {R"({"firefox": {"path": {}}})", Kind::typeMismatch, u"firefox.path"_s},
    };
    for (const Row &row : rows)
        expectError(profileTargetFromJson(parsed(row.json)), row.kind, row.path, row.json.toStdString());
}

TEST(ProfileJson, ATargetOfAnotherTypeFails)
{
    for (const QByteArray json : {"null", "1", "\"chromium\"", "[]", "false"})
        EXPECT_FALSE(profileTargetFromJson(parsed(json))) << json.toStdString();
}

TEST(ProfileJson, AProfileWithoutPictureHasThreeMembers)
{
    const Profile profile{test::chrome, u"Work"_s, ProfileTarget::chromium(u"x"_s)};
    EXPECT_EQ(toJson(profile), savedProfile());
    EXPECT_FALSE(toJson(profile).contains(u"avatarPNG"_s));
    EXPECT_EQ(profileFromJson(savedProfile()).value(), profile);
}

TEST(ProfileJson, APictureIsSavedInStandardBase64)
{
    const std::vector<std::pair<QByteArray, QString>> rows{{"A", u"QQ=="_s},
                                                           {"\xfb\xff\xbf", u"+/+/"_s},
                                                           {QByteArray("\x89PNG\r\n\x1a\n\0", 9), u"iVBORw0KGgoA"_s},
                                                           {"", u""_s}};
    for (const auto &[bytes, text] : rows) {
        const Profile profile{test::chrome, u"Work"_s, ProfileTarget::chromium(u"x"_s), bytes};
        EXPECT_EQ(toJson(profile)[u"avatarPNG"_s], QJsonValue(text));
        EXPECT_EQ(profileFromJson(toJson(profile)).value(), profile);
    }
}

TEST(ProfileJson, AProfileMayHoldANullPictureAndMembersThatNobodyKnows)
{
    QJsonObject json = savedProfile();
    json.insert(u"avatarPNG"_s, QJsonValue::Null);
    json.insert(u"future"_s, QJsonArray{1, 2});
    EXPECT_EQ(profileFromJson(json).value(), profileFromJson(savedProfile()).value());
}

TEST(ProfileJson, AMissingMemberOfAProfileFails)
{
    for (const QString &name : {u"browserBundleID"_s, u"name"_s, u"target"_s}) {
        QJsonObject json = savedProfile();
        json.remove(name);
        expectError(profileFromJson(json), Kind::keyNotFound, {}, name.toStdString());
        EXPECT_TRUE(profileFromJson(json).error().message().contains(name));
    }
}

TEST(ProfileJson, AMistypedMemberOfAProfileFails)
{
    for (const QString &name : {u"browserBundleID"_s, u"name"_s, u"target"_s, u"avatarPNG"_s}) {
        for (const QJsonValue &value : {QJsonValue(1), QJsonValue(false), QJsonValue(QJsonArray())}) {
            QJsonObject json = savedProfile();
            json.insert(name, value);
            expectError(profileFromJson(json), Kind::typeMismatch, name, name.toStdString());
        }
    }
}

TEST(ProfileJson, ANullMemberOfAProfileFailsUnlessItIsThePicture)
{
    for (const QString &name : {u"browserBundleID"_s, u"name"_s, u"target"_s}) {
        QJsonObject json = savedProfile();
        json.insert(name, QJsonValue::Null);
        expectError(profileFromJson(json), Kind::valueNotFound, name, name.toStdString());
    }
}

TEST(ProfileJson, ADamagedPictureFails)
{
    QJsonObject json = savedProfile();
    json.insert(u"avatarPNG"_s, u"not base64"_s);
    expectError(profileFromJson(json), Kind::dataCorrupted, u"avatarPNG"_s, "not base64");
}

TEST(ProfileJson, AnErrorInTheTargetNamesItsPlace)
{
    QJsonObject json = savedProfile();
    json.insert(u"target"_s, parsed(R"({"chromium": {"folder": 5}})"));
    expectError(profileFromJson(json), Kind::typeMismatch, u"target.chromium.folder"_s, "folder");
    json.insert(u"target"_s, QJsonObject());
    expectError(profileFromJson(json), Kind::typeMismatch, u"target"_s, "empty");
    EXPECT_EQ(profileFromJson(json).error().debugDescription, QLatin1StringView(wrongCount));
}

TEST(ProfileJson, AProfileOfAnotherTypeFails)
{
    for (const QByteArray json : {"null", "1", "\"x\"", "[]", "true"})
        EXPECT_FALSE(profileFromJson(parsed(json))) << json.toStdString();
}

} // namespace
} // namespace vantrel
