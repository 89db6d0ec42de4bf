#pragma once

#include "Platform/BrowserData.h"
#include "Vantrel/DiscoveryRuns.h"
#include "Vantrel/Interface/ProfileLaunchers.h"
#include "Vantrel/Interface/QtKeyEvent.h"
#include "Vantrel/Interface/Settings/ProfilesView.h"
#include "Vantrel/Pictures/ProfileIconCache.h"
#include "Vantrel/ProfileHotkeys.h"
#include "Vantrel/ProfileOpener.h"
#include "Vantrel/Settings/ShortcutTexts.h"

#include <QMenu>
#include <QPointer>
#include <QStackedLayout>

namespace vantrel {

/// The page of the settings with all browsers and profiles. Every change reaches the store at once, and what changes
/// elsewhere shows at once.
class ProfilesSettings final : public QWidget {
    Q_OBJECT

public:
    /// What it works with; all must outlive it.
    struct Environment {
        ProfileStore &store;
        DiscoveryRuns &discovery;
        ProfileOpener &opener;
        KeyboardShortcuts &shortcuts;
        const ProfileHotkeys &hotkeys;
        const ShortcutTexts &shortcutTexts;
        /// Reads the events of this desktop's keyboard.
        KeyEventReader readKey;
        ProfileIconCache &icons;
        ProfileLaunchers &launchers;
        const BrowserData &browserData;
        const SymbolIcons &symbols;
    };

    explicit ProfilesSettings(const Environment &environment, QWidget *parent = nullptr);

    /// The keyboard, or what the desktop says about shortcuts, has changed.
    void takeKeyboardChange();

    void commitNames() { view_->commitNames(); }

private:
    [[nodiscard]] ProfilesView *makeView();
    void connectView();
    void showStore();
    void updateKeyboardNote();
    [[nodiscard]] const Profile *profile(const QString &profileID) const;
    [[nodiscard]] ProfileRow::Content contentOf(const Profile &profile) const;
    [[nodiscard]] ShortcutRecorder *makeRecorder(const QString &profileID, QWidget *parent);
    void act(const QString &bundleID, SettingsNote::Action action);
    void move(const QString &profileID, ProfileMove::Direction direction);
    void showMenu(const QString &profileID, const QPoint &place);

    Environment environment_;
    QStackedLayout *pages_;
    QWidget *empty_;
    QWidget *list_;
    QPointer<NoteView> keyboardNote_;
    std::optional<SettingsNote> shownKeyboardNote_;
    bool areShortcutsAvailable_;
    ProfilesView *view_;
    QMenu menu_;
};

} // namespace vantrel
