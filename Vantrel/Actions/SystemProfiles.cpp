#include "Vantrel/Actions/SystemProfiles.h"

namespace vantrel {

SystemProfile systemProfile(const ProfileEntity &entity, ProfileIconCache &icons)
{
    return {.id = entity.id,
            .name = entity.title,
            .browser = entity.browser,
            .title = entity.displayRepresentation,
            .picture = icons.png(entity.avatar, systemPicturePixels)};
}

} // namespace vantrel
