#pragma once

#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"
#include "KeyboardShortcuts/ShortcutName.h"
#include "Platform/UserDefaults.h"

#include <QList>
#include <QObject>
#include <QSet>

#include <optional>

namespace vantrel {

/// The user's global shortcuts: which name has which, stored in the user defaults, and what each does. Made once; main
/// thread only.
class KeyboardShortcuts final : public QObject {
    Q_OBJECT

public:
    using Name = ShortcutName;
    using Action = std::function<void()>;

    enum class EventType : std::uint8_t { keyDown, keyUp };

    /// What it works with; all must outlive it.
    struct Environment {
        UserDefaults &defaults;
        HotKeyPort &port;
        const KeyboardLayout &layout;
        /// Gets a line about each shortcut that the system refuses.
        CarbonKeyboardShortcuts::Print print = printToStandardOutput;
    };

    explicit KeyboardShortcuts(Environment environment);
    ~KeyboardShortcuts() override = default;
    Q_DISABLE_COPY_MOVE(KeyboardShortcuts)

    /// A name whose default is stored now, unless something was stored for it before: also that it has none.
    [[nodiscard]] Name name(const QString &rawValue, const std::optional<Shortcut> &defaultShortcut = {});

    /// As it is stored now; none for an entry that can't be read.
    [[nodiscard]] std::optional<Shortcut> getShortcut(const Name &name) const;
    /// Stores it and has the system watch it; without one, the name loses what it has.
    void setShortcut(const std::optional<Shortcut> &shortcut, const Name &name);

    /// The id under which the system watches the shortcut; none when it doesn't.
    [[nodiscard]] std::optional<std::uint32_t> hotKeyId(const Shortcut &shortcut) const
    {
        return registry_.hotKeyId(shortcut);
    }

    /// Each adds an action, called whenever the name's shortcut goes down or up; actions are never removed.
    void onKeyDown(const Name &name, Action action);
    void onKeyUp(const Name &name, Action action);

    /// Whether the system watches the names' shortcuts. Their actions stay.
    void disable(const QList<Name> &names);
    void enable(const QList<Name> &names);

    /// Whether any shortcut does anything. At first it is so.
    [[nodiscard]] bool isEnabled() const { return isEnabled_; }
    void setEnabled(bool isEnabled);

    /// Whether a menu of the program has the keyboard, so that shortcuts have to be found among its keys.
    [[nodiscard]] bool isMenuOpen() const { return isMenuOpen_; }
    void setMenuOpen(bool isOpen);

    /// While a field for a shortcut has the keyboard, pressed shortcuts do nothing.
    [[nodiscard]] bool isRecorderActive() const { return isRecorderActive_; }
    void setRecorderActive(bool isActive) { isRecorderActive_ = isActive; }

    /// The key in the user defaults.
    [[nodiscard]] static QString userDefaultsKey(const Name &name);

    static void printToStandardOutput(const QString &line);

Q_SIGNALS:
    /// Something was stored for the name, or taken from it.
    void shortcutByNameDidChange(const vantrel::ShortcutName &name);

private:
    struct NamedActions {
        Name name;
        QList<Action> actions;
    };
    using Actions = QList<NamedActions>;

    static void append(Actions &all, const Name &name, Action action);
    void registerIfNeeded(const Shortcut &shortcut);
    void registerIfNeeded(const Name &name);
    void unregister(const Shortcut &shortcut);
    void remove(const Name &name);
    void updateListening();
    void dispatch(EventType type, const Shortcut &pressed) const;

    UserDefaults &defaults_;
    CarbonKeyboardShortcuts registry_;
    Actions keyDownActions_;
    Actions keyUpActions_;
    /// Those handed to the registry, whether or not the system took them.
    QSet<Shortcut> registered_;
    bool isEnabled_ = true;
    bool isMenuOpen_ = false;
    bool isRecorderActive_ = false;
};

} // namespace vantrel
