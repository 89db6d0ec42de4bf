#include "Vantrel/Interface/GlobalShortcuts.h"

#include "Vantrel/KeyEquivalent.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {

GlobalShortcuts::GlobalShortcuts(const Environment &environment)
    : store_(environment.store),
      conventions_(environment.conventions),
      keyboard_(DesktopKeyboard::create(
          environment.activation,
          [this](std::uint32_t keyCode, std::uint32_t modifiers) { return descriptionOf(keyCode, modifiers); })),
      shortcuts_({environment.defaults, *keyboard_.hotKeys, *keyboard_.layout}),
      hotkeys_(environment.store, environment.opener, shortcuts_),
      texts_(shortcuts_, keyboard_, environment.conventions)
{
    connect(&shortcuts_, &KeyboardShortcuts::shortcutByNameDidChange, this, &GlobalShortcuts::updateKeyEquivalents);
    connect(&store_, &ProfileStore::profilesChanged, this, &GlobalShortcuts::updateKeyEquivalents);
    const auto change = [this] {
        updateKeyEquivalents();
        Q_EMIT keyboardChanged();
    };
    keyboard_.layout->onChange(change);
    keyboard_.hotKeys->onChange(change);
    hotkeys_.start();
    updateKeyEquivalents();
}

QKeySequence GlobalShortcuts::currentKeyEquivalentOf(const Profile &profile) const
{
    return keyEquivalent(shortcuts_.getShortcut(ProfileHotkeys::shortcutName(profile)), *keyboard_.layout,
                         conventions_.qtKeyNames);
}

void GlobalShortcuts::updateKeyEquivalents()
{
    QHash<QString, QKeySequence> keys;
    for (const Profile &profile : store_.profiles()) {
        if (const QKeySequence key = currentKeyEquivalentOf(profile); !key.isEmpty())
            keys.insert(profile.id(), key);
    }
    // Another keyboard is news of the layout as well, and with most of them nothing looks different.
    if (keys != std::exchange(keyEquivalents_, keys))
        Q_EMIT keyEquivalentsChanged();
}

QString GlobalShortcuts::descriptionOf(std::uint32_t keyCode, std::uint32_t modifiers) const
{
    const Shortcut wanted{keyCode, modifiers};
    for (const Profile &profile : store_.profiles()) {
        if (shortcuts_.getShortcut(ProfileHotkeys::shortcutName(profile)) == wanted) {
            //: What a global shortcut does, where the desktop lets the user choose its keys. The placeholder is a
            //: browser's and a profile's name.
            return tr("Open %1").arg(store_.catalogue().title(profile));
        }
    }
    return u"Vantrel"_s;
}

} // namespace vantrel
