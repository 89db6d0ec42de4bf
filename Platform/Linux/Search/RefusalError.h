#pragma once

#include "Platform/ProfileAnswers.h"

#include <QDBusMessage>

namespace vantrel {

/// An empty reply, or the error app.kestrune.Vantrel.Error.UnknownProfile or .BadLink with the refusal's message.
[[nodiscard]] QDBusMessage replyOrError(const QDBusMessage &call, const ProfileAnswers::Outcome &outcome);

} // namespace vantrel
