#include "Platform/AppIntents/ProfileArray.h"

namespace vantrel {

ProfileArray::ProfileArray(QList<SystemProfile> profiles) : profiles_(std::move(profiles))
{
    rows_.reserve(static_cast<std::size_t>(profiles_.size()));
    for (const SystemProfile &profile : std::as_const(profiles_)) {
        const QByteArray &picture = profile.picture;
        rows_.push_back(
            {.id = kept(profile.id),
             .name = kept(profile.name),
             .browser = kept(profile.browser),
             .title = kept(profile.title),
             .picture = picture.isEmpty() ? nullptr : reinterpret_cast<const std::uint8_t *>(picture.constData()),
             .pictureSize = static_cast<std::size_t>(picture.size())});
    }
}

const char *ProfileArray::kept(const QString &text)
{
    texts_.append(text.toUtf8());
    // Stays where it is when the list grows: the bytes are not in the list itself.
    return texts_.constLast().constData();
}

} // namespace vantrel
