#pragma once

#include "KeyboardShortcuts/DesktopKeyboard.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Platform/SystemConventions.h"
#include "Vantrel/Interface/QtKeyEvent.h"
#include "Vantrel/ProfileHotkeys.h"
#include "Vantrel/Settings/ShortcutTexts.h"

#include <QKeySequence>

namespace vantrel {

/// The profiles' keyboard shortcuts and the keyboard that they are on. Asking for that takes a while, so it is made
/// once the program has shown its symbol. Main thread only.
class GlobalShortcuts final : public QObject {
    Q_OBJECT

public:
    /// What it works with; all must outlive it.
    struct Environment {
        ActivationSource &activation;
        UserDefaults &defaults;
        const ProfileStore &store;
        ProfileOpener &opener;
        const SystemConventions &conventions;
    };

    explicit GlobalShortcuts(const Environment &environment);
    ~GlobalShortcuts() override = default;
    Q_DISABLE_COPY_MOVE(GlobalShortcuts)

    [[nodiscard]] KeyboardShortcuts &shortcuts() { return shortcuts_; }
    [[nodiscard]] const ProfileHotkeys &hotkeys() const { return hotkeys_; }
    [[nodiscard]] const ShortcutTexts &texts() const { return texts_; }
    /// What reads this keyboard's key events.
    [[nodiscard]] KeyEventReader keyReader() const { return keyEventReader(keyboard_.keyNumber); }

    /// What the menus show beside the profile; empty without a shortcut.
    [[nodiscard]] QKeySequence keyEquivalentOf(const Profile &profile) const
    {
        return keyEquivalents_.value(profile.id());
    }

Q_SIGNALS:
    /// What the menus show is another.
    void keyEquivalentsChanged();
    /// The keyboard, or what the desktop says about shortcuts, has changed.
    void keyboardChanged();

private:
    void updateKeyEquivalents();
    [[nodiscard]] QKeySequence currentKeyEquivalentOf(const Profile &profile) const;
    [[nodiscard]] QString descriptionOf(std::uint32_t keyCode, std::uint32_t modifiers) const;

    const ProfileStore &store_;
    const SystemConventions &conventions_;
    DesktopKeyboard keyboard_;
    KeyboardShortcuts shortcuts_;
    ProfileHotkeys hotkeys_;
    ShortcutTexts texts_;
    /// By the profiles' ids; only of those that have one. The defaults take a while to ask about a thousand rows.
    QHash<QString, QKeySequence> keyEquivalents_;
};

} // namespace vantrel
