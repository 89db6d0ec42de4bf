#pragma once

#include "Platform/ProfileAnswers.h"

namespace vantrel {

/// Lets other programs of the session, such as its search, ask for profiles and open them. Main thread only.
class ProfileService {
public:
    virtual ~ProfileService() = default;

    /// Questions are passed on from the event loop; `answers` must outlive it. Call once, before the app becomes the
    /// instance that others find.
    virtual void start(ProfileAnswers &answers) = 0;

    /// What `list` answers has changed.
    virtual void announceChange() = 0;
};

} // namespace vantrel
