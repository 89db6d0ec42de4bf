#include "VantrelKit/ProfileJson.h"

#include "VantrelKit/JsonDecoding.h"
#include "VantrelKit/Overloaded.h"

#include <array>
#include <functional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using TargetResult = std::expected<ProfileTarget, DecodingError>;

/// One case: the member's name and how its payload is read.
struct TargetCase {
    QLatin1StringView name;
    TargetResult (*read)(const QJsonObject &payload);
};

template <typename Payload>
TargetResult made(ProfileTarget (*make)(QString), const Payload &payload)
{
    if (!payload)
        return std::unexpected(payload.error());
    return make(*payload);
}

TargetResult readSafariProfile(const QJsonObject &payload)
{
    const auto name = json::string(payload, u"name"_s);
    if (!name)
        return std::unexpected(name.error());
    const auto index = json::integer(payload, u"index"_s);
    if (!index)
        return std::unexpected(index.error());
    return ProfileTarget::safariProfile(*name, *index);
}

TargetResult readChromium(const QJsonObject &payload)
{
    return made(&ProfileTarget::chromium, json::string(payload, u"folder"_s));
}

TargetResult readFirefox(const QJsonObject &payload)
{
    return made(&ProfileTarget::firefox, json::string(payload, u"path"_s));
}

constexpr std::array targetCases{
    TargetCase{"safariProfile"_L1, &readSafariProfile},
    TargetCase{"safariPrivate"_L1, [](const QJsonObject &) -> TargetResult { return ProfileTarget::safariPrivate(); }},
    TargetCase{"chromium"_L1, &readChromium},
    TargetCase{"chromiumPrivate"_L1,
               [](const QJsonObject &) -> TargetResult { return ProfileTarget::chromiumPrivate(); }},
    TargetCase{"firefox"_L1, &readFirefox},
    TargetCase{"firefoxPrivate"_L1,
               [](const QJsonObject &) -> TargetResult { return ProfileTarget::firefoxPrivate(); }},
};

QJsonObject payloadOf(const ProfileTarget &target)
{
    return std::visit(
        Overloaded{
            [](const ProfileTarget::SafariProfile &profile) {
                return QJsonObject{{u"name"_s, profile.name}, {u"index"_s, profile.index}};
            },
            [](const ProfileTarget::Chromium &profile) { return QJsonObject{{u"folder"_s, profile.folder}}; },
            [](const ProfileTarget::Firefox &profile) { return QJsonObject{{u"path"_s, profile.path}}; },
            [](const auto &) { return QJsonObject(); },
        },
        target.value);
}

} // namespace

QJsonObject toJson(const ProfileTarget &target)
{
    // The cases stand in the same order as the variant's alternatives.
    return {{targetCases.at(target.value.index()).name, payloadOf(target)}};
}

TargetResult profileTargetFromJson(const QJsonValue &json)
{
    const auto outer = json::object(json);
    if (!outer)
        return std::unexpected(outer.error());
    const TargetCase *found = nullptr;
    int count = 0;
    for (const TargetCase &candidate : targetCases) {
        if (!outer->contains(candidate.name))
            continue;
        found = &candidate;
        ++count;
    }
    if (count != 1) {
        return std::unexpected(
            DecodingError{DecodingError::Kind::typeMismatch, {}, u"Invalid number of keys found, expected one."_s});
    }
    const auto payload = json::object(outer->value(found->name));
    const TargetResult target = payload ? found->read(*payload) : std::unexpected(payload.error());
    if (!target)
        return std::unexpected(target.error().below(found->name));
    return target;
}

QJsonObject toJson(const Profile &profile)
{
    QJsonObject object{
        {u"browserBundleID"_s, profile.browserBundleID},
        {u"name"_s, profile.name},
        {u"target"_s, toJson(profile.target)},
    };
    if (profile.avatarPNG)
        object.insert(u"avatarPNG"_s, QString::fromLatin1(profile.avatarPNG->toBase64()));
    return object;
}

std::expected<Profile, DecodingError> profileFromJson(const QJsonValue &json)
{
    const auto object = json::object(json);
    if (!object)
        return std::unexpected(object.error());
    const auto browserBundleID = json::string(*object, u"browserBundleID"_s);
    if (!browserBundleID)
        return std::unexpected(browserBundleID.error());
    const auto name = json::string(*object, u"name"_s);
    if (!name)
        return std::unexpected(name.error());
    const auto targetJson = json::member(*object, u"target"_s);
    if (!targetJson)
        return std::unexpected(targetJson.error());
    const auto target = profileTargetFromJson(*targetJson);
    if (!target)
        return std::unexpected(target.error().below(u"target"_s));
    const auto avatar = json::optionalBytes(*object, u"avatarPNG"_s);
    if (!avatar)
        return std::unexpected(avatar.error());
    return Profile{*browserBundleID, *name, *target, *avatar};
}

} // namespace vantrel
