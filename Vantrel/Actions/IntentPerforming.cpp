#include "Vantrel/Actions/IntentPerforming.h"

#include <algorithm>

namespace vantrel {

QCoro::Task<OpenProfileIntent::Result> performOpening(IntentEnvironment environment, QString profileID,
                                                      QList<QUrl> links, NeedsValueError::Parameter parameter)
{
    const QList<Profile> profiles = environment.store.profiles();
    const auto found = std::ranges::find(profiles, profileID, &Profile::id);
    if (found == profiles.end())
        co_return std::unexpected(NeedsValueError{parameter});
    co_await environment.opener.open(*found, std::move(links), ProfileOpener::Source::intent);
    co_return {};
}

} // namespace vantrel
