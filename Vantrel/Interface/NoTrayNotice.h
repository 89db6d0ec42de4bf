#pragma once

#include "Platform/ActivationPolicy.h"
#include "Platform/UserDefaults.h"

namespace vantrel {

/// Tells the user that the desktop has no place for the program's symbol. Main thread only.
class NoTrayNotice {
public:
    /// Both must outlive it.
    NoTrayNotice(UserDefaults &defaults, ActivationPolicy &policy) : defaults_(defaults), policy_(policy) {}

    /// Once, ever: it would come at each login. Returns at once.
    void showOnce();

private:
    UserDefaults &defaults_;
    ActivationPolicy &policy_;
};

} // namespace vantrel
