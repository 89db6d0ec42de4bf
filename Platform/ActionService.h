#pragma once

#include "Platform/ActionAnswers.h"

namespace vantrel {

/// Offers the app's actions to the system, such as its automation and its assistant. Main thread only.
class ActionService {
public:
    virtual ~ActionService() = default;

    /// Actions are passed on from now on, those that came before at once; `answers` must outlive it. Call once.
    virtual void start(ActionAnswers &answers) = 0;

    /// What the user can pick from has changed.
    virtual void announceChange() = 0;
};

} // namespace vantrel
