#pragma once

#include "KeyboardShortcuts/KeyboardLayout.h"
#include "KeyboardShortcuts/Linux/XkbKeymap.h"
#include "KeyboardShortcuts/X11/XkbEvents.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <memory>

namespace vantrel {

/// The layout that the X server's keyboard has. Of several it is the chosen one if that types ASCII, otherwise the
/// first that does.
class XkbKeyboardLayout final : public KeyboardLayout, private QAbstractNativeEventFilter {
public:
    /// Null where the program's windows aren't on an X server. The QGuiApplication lives longer.
    [[nodiscard]] static std::unique_ptr<XkbKeyboardLayout> create();

    ~XkbKeyboardLayout() override;
    Q_DISABLE_COPY_MOVE(XkbKeyboardLayout)

    [[nodiscard]] std::optional<QString> character(std::uint32_t keyCode) const override;
    void onChange(std::function<void()> changed) override { changed_ = std::move(changed); }

private:
    explicit XkbKeyboardLayout(xcb_connection_t *connection);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void read();
    void update();

    xcb_connection_t *connection_;
    XkbEvents events_;
    XkbKeymap keymap_;
    std::uint32_t layout_ = 0;
    bool isUpdateDue_ = false;
    std::function<void()> changed_;
    /// What is due later belongs to it.
    QObject context_;
};

} // namespace vantrel
