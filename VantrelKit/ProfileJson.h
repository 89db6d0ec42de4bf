#pragma once

#include "VantrelKit/DecodingError.h"
#include "VantrelKit/Profile.h"

#include <QJsonObject>
#include <QJsonValue>

#include <expected>

namespace vantrel {

/// {"chromium": {"folder": "Default"}}: exactly one member, named after the case, its payload below it.
[[nodiscard]] QJsonObject toJson(const ProfileTarget &target);

/// Fails unless exactly one of the members is named after a case; other members are ignored.
[[nodiscard]] std::expected<ProfileTarget, DecodingError> profileTargetFromJson(const QJsonValue &json);

/// The members "browserBundleID", "name", "target" and, where there is a picture, "avatarPNG" in Base64.
[[nodiscard]] QJsonObject toJson(const Profile &profile);

[[nodiscard]] std::expected<Profile, DecodingError> profileFromJson(const QJsonValue &json);

} // namespace vantrel
