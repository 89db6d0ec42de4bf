#include "Vantrel/SettingsWindows.h"

namespace vantrel {

void SettingsWindows::windowAppeared()
{
    ++count_;
    policy_.becomeRegular();
    policy_.activate();
}

void SettingsWindows::windowDisappeared()
{
    if (count_ == 0)
        return;
    if (--count_ == 0)
        policy_.becomeAccessory();
}

} // namespace vantrel
