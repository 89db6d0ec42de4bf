#pragma once

#include "Platform/SystemProfile.h"
#include "Vantrel/Actions/ProfileEntity.h"
#include "Vantrel/Pictures/ProfileIconCache.h"

namespace vantrel {

/// The side of the pictures.
constexpr int systemPicturePixels = 64;

/// The profile with its picture drawn.
[[nodiscard]] SystemProfile systemProfile(const ProfileEntity &entity, ProfileIconCache &icons);

} // namespace vantrel
