#include "VantrelKit/DiscoveredProfile.h"

#include "VantrelKit/JsonDecoding.h"

using namespace Qt::StringLiterals;

namespace vantrel {

QJsonObject toJson(const DiscoveredProfile &profile)
{
    QJsonObject object{{u"name"_s, profile.name}, {u"folder"_s, profile.folder}};
    if (profile.avatarPNG)
        object.insert(u"avatarPNG"_s, QString::fromLatin1(profile.avatarPNG->toBase64()));
    return object;
}

std::expected<DiscoveredProfile, DecodingError> discoveredProfileFromJson(const QJsonValue &json)
{
    const auto object = json::object(json);
    if (!object)
        return std::unexpected(object.error());
    const auto name = json::string(*object, u"name"_s);
    if (!name)
        return std::unexpected(name.error());
    const auto folder = json::string(*object, u"folder"_s);
    if (!folder)
        return std::unexpected(folder.error());
    const auto avatar = json::optionalBytes(*object, u"avatarPNG"_s);
    if (!avatar)
        return std::unexpected(avatar.error());
    return DiscoveredProfile{*name, *folder, *avatar};
}

} // namespace vantrel
