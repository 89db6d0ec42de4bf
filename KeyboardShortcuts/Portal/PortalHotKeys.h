#pragma once

#include "KeyboardShortcuts/DesktopHotKeys.h"
#include "KeyboardShortcuts/DesktopKeyboard.h"
#include "KeyboardShortcuts/Linux/XkbKeymap.h"
#include "KeyboardShortcuts/Portal/PortalSession.h"
#include "Platform/ActivationSource.h"

#include <QObject>

#include <map>

namespace vantrel {

/// Hotkeys of the desktop portal, for programs whose windows aren't on an X server. The desktop decides which keys it
/// gives, perhaps after asking the user; a combination is but a wish. What was once given stays while a menu is open:
/// the portal also reports its keys then.
class PortalHotKeys final : public DesktopHotKeys {
public:
    /// The connection is the program's first to the portal, and open. `source` lives longer than this, and is told of
    /// the user's acts.
    PortalHotKeys(const QDBusConnection &connection, ActivationSource &source, HotKeyDescription description);
    ~PortalHotKeys() override;
    Q_DISABLE_COPY_MOVE(PortalHotKeys)

    /// Call once.
    void start() { session_.start(); }

    void setHandlers(Handlers handlers) override { handlers_ = std::move(handlers); }
    /// The error is EINVAL, for keys that no keyboard has here. Whether the desktop grants the wish is known later.
    [[nodiscard]] std::expected<void, std::int32_t> add(std::uint32_t id, std::uint32_t keyCode,
                                                        std::uint32_t modifiers) override;
    void remove(std::uint32_t id) override;
    void listen(Listening listening) override;

    [[nodiscard]] Availability availability() const override { return session_.availability(); }
    [[nodiscard]] std::optional<QString> grantedTrigger(std::uint32_t id) const override;
    void onChange(std::function<void()> changed) override { changed_ = std::move(changed); }

private:
    /// Key code and modifiers.
    using Combination = std::pair<std::uint32_t, std::uint32_t>;

    /// Tells the portal once what has changed in this turn of the event loop.
    void updateLater();
    void update();
    void activated(const QString &id, bool isActive, const QVariantMap &options);
    void report(const Combination &combination, bool isPressed);

    ActivationSource &source_;
    HotKeyDescription description_;
    XkbKeymap keymap_ = XkbKeymap::makeDefault();
    Handlers handlers_;
    std::function<void()> changed_;
    Listening listening_ = Listening::nothing;
    bool isUpdateDue_ = false;
    std::map<std::uint32_t, Combination> added_;
    /// By the portal's ids: what it was last asked for, and what is held down.
    std::map<QString, Combination> asked_;
    std::map<QString, Combination> active_;
    /// What is due later belongs to it.
    QObject context_;
    PortalSession session_;
};

} // namespace vantrel
