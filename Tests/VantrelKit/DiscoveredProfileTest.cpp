#include "VantrelKit/DiscoveredProfile.h"

#include "Tests/VantrelKit/Samples.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = DecodingError::Kind;

const DiscoveredProfile work{u"Work"_s, u"Profile 1"_s, QByteArray("\x89PNG")};

TEST(DiscoveredProfile, NameFolderAndPictureCountForEquality)
{
    DiscoveredProfile otherName = work;
    otherName.name = u"Home"_s;
    DiscoveredProfile otherFolder = work;
    otherFolder.folder = u"Profile 2"_s;
    DiscoveredProfile otherPicture = work;
    otherPicture.avatarPNG = QByteArray("other");
    DiscoveredProfile noPicture = work;
    noPicture.avatarPNG = std::nullopt;
    EXPECT_EQ(work, DiscoveredProfile(work));
    for (const DiscoveredProfile &other : {otherName, otherFolder, otherPicture, noPicture})
        EXPECT_NE(other, work);
}

TEST(DiscoveredProfile, ItsJsonHasThePictureInBase64)
{
    const QJsonObject json{{u"name"_s, u"Work"_s}, {u"folder"_s, u"Profile 1"_s}, {u"avatarPNG"_s, u"iVBORw=="_s}};
    EXPECT_EQ(toJson(work), json);
    EXPECT_EQ(discoveredProfileFromJson(json).value(), work);
}

TEST(DiscoveredProfile, ItsJsonHasNoMemberForAMissingPicture)
{
    DiscoveredProfile plain = work;
    plain.avatarPNG = std::nullopt;
    EXPECT_EQ(toJson(plain), QJsonObject({{u"name"_s, u"Work"_s}, {u"folder"_s, u"Profile 1"_s}}));
    EXPECT_EQ(discoveredProfileFromJson(toJson(plain)).value(), plain);
}

TEST(DiscoveredProfile, EncodingAndDecodingKeepsAnyText)
{
    for (const QString &text : QStringList(u""_s) + test::oddTexts()) {
        const DiscoveredProfile profile{text, text, text.toUtf8()};
        const QByteArray json = QJsonDocument(toJson(profile)).toJson();
        EXPECT_EQ(discoveredProfileFromJson(QJsonDocument::fromJson(json).object()).value(), profile);
    }
}

TEST(DiscoveredProfile, MissingAndMistypedMembersFail)
{
    for (const QString &name : {u"name"_s, u"folder"_s}) {
        QJsonObject json = toJson(work);
        json.remove(name);
        EXPECT_EQ(discoveredProfileFromJson(json).error().kind, Kind::keyNotFound);
        json.insert(name, 1);
        EXPECT_EQ(discoveredProfileFromJson(json).error().kind, Kind::typeMismatch);
        EXPECT_EQ(discoveredProfileFromJson(json).error().path, name);
    }
    QJsonObject json = toJson(work);
    json.insert(u"avatarPNG"_s, QJsonArray());
    EXPECT_EQ(discoveredProfileFromJson(json).error().kind, Kind::typeMismatch);
    json.insert(u"avatarPNG"_s, u"*"_s);
    EXPECT_EQ(discoveredProfileFromJson(json).error().kind, Kind::dataCorrupted);
}

TEST(DiscoveredProfile, OnlyAnObjectIsOne)
{
    for (const QJsonValue &value : {QJsonValue(QJsonValue::Null), QJsonValue(u"x"_s), QJsonValue(QJsonArray())})
        EXPECT_FALSE(discoveredProfileFromJson(value));
}

} // namespace
} // namespace vantrel
