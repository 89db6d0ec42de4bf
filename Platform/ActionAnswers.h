#pragma once

#include "Platform/SystemProfile.h"

#include <QCoroTask>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <cstdint>

namespace vantrel {

/// What the app does and answers for the actions that the system offers. An answer may take its time: the action may be
/// what has started the app. Main thread only.
class ActionAnswers {
public:
    enum class Outcome : std::uint8_t {
        /// Done, or a failure was shown to the user.
        performed,
        /// The profile is gone: the user has to choose another one.
        needsProfile,
    };
    using Profiles = QCoro::Task<QList<SystemProfile>>;

    virtual ~ActionAnswers() = default;

    /// Those with these ids, in the order given; ids without a profile are left out.
    [[nodiscard]] virtual Profiles profiles(QStringList ids) = 0;

    /// What the user can pick from.
    [[nodiscard]] virtual Profiles suggestedProfiles() = 0;

    /// Those of the suggested ones with the text in their titles, whatever its case and diacritics.
    [[nodiscard]] virtual Profiles profilesMatching(QString text) = 0;

    /// Done when the opening has ended.
    [[nodiscard]] virtual QCoro::Task<Outcome> openProfile(QString id) = 0;

    /// The same; without links the profile alone is opened.
    [[nodiscard]] virtual QCoro::Task<Outcome> openLinks(QList<QUrl> links, QString profileID) = 0;
};

} // namespace vantrel
