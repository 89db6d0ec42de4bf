#pragma once

#include "Vantrel/Actions/OpenProfileIntent.h"

namespace vantrel {

/// What the intents have in common: opens the profile that the store has under the id now, and waits for the end of it.
/// Without one, `parameter` needs a value.
[[nodiscard]] QCoro::Task<OpenProfileIntent::Result> performOpening(IntentEnvironment environment, QString profileID,
                                                                    QList<QUrl> links,
                                                                    NeedsValueError::Parameter parameter);

} // namespace vantrel
