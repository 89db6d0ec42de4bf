#pragma once

#include "KeyboardShortcuts/DesktopKeyboard.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Platform/SystemConventions.h"
#include "Vantrel/Settings/SettingsNote.h"

namespace vantrel {

/// How the user reads shortcuts, and what there is to say of them on this desktop. Main thread only.
class ShortcutTexts {
public:
    /// All must outlive it.
    ShortcutTexts(const KeyboardShortcuts &shortcuts, const DesktopKeyboard &keyboard,
                  const SystemConventions &conventions)
        : shortcuts_(shortcuts),
          keyboard_(keyboard),
          conventions_(conventions)
    {
    }

    /// The keys that were recorded, or those that the desktop gave instead.
    [[nodiscard]] QString text(const Shortcut &shortcut) const;

    /// Whether recording a shortcut has any use.
    [[nodiscard]] bool areAvailable() const;

    /// Why not, and what else there is; none when shortcuts are available.
    [[nodiscard]] std::optional<SettingsNote> note() const;

private:
    const KeyboardShortcuts &shortcuts_;
    const DesktopKeyboard &keyboard_;
    const SystemConventions &conventions_;
};

} // namespace vantrel
