#include "KeyboardShortcuts/X11/XkbKeyboardLayout.h"

#include <QGuiApplication>

#include <xkbcommon/xkbcommon-x11.h>
#include <xkbcommon/xkbcommon.h>

#include <utility>

namespace vantrel {
namespace {

struct StateDeleter {
    void operator()(xkb_state *state) const { xkb_state_unref(state); }
};

} // namespace

std::unique_ptr<XkbKeyboardLayout> XkbKeyboardLayout::create()
{
    const auto *application = dynamic_cast<QGuiApplication *>(QCoreApplication::instance());
    const auto *x11 = application ? application->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11 || !x11->connection())
        return nullptr;
    std::unique_ptr<XkbKeyboardLayout> layout(new XkbKeyboardLayout(x11->connection()));
    layout->read();
    QCoreApplication::instance()->installNativeEventFilter(layout.get());
    return layout;
}

XkbKeyboardLayout::XkbKeyboardLayout(xcb_connection_t *connection) : connection_(connection), events_(connection) {}

XkbKeyboardLayout::~XkbKeyboardLayout() = default;

std::optional<QString> XkbKeyboardLayout::character(std::uint32_t keyCode) const
{
    return keymap_.character(keyCode, layout_);
}

bool XkbKeyboardLayout::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
    if (eventType != "xcb_generic_event_t" || !events_.change(message) || isUpdateDue_)
        return false;
    // One change comes as several events, which are all there by then.
    isUpdateDue_ = true;
    QMetaObject::invokeMethod(&context_, [this] { update(); }, Qt::QueuedConnection);
    return false;
}

void XkbKeyboardLayout::update()
{
    isUpdateDue_ = false;
    read();
    const auto changed = changed_;
    if (changed)
        changed();
}

void XkbKeyboardLayout::read()
{
    const XkbKeymap::Context context = XkbKeymap::makeContext();
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection_);
    if (!context || device < 0)
        return;
    XkbKeymap::Keymap keymap(
        xkb_x11_keymap_new_from_device(context.get(), connection_, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap)
        return;
    const std::unique_ptr<xkb_state, StateDeleter> state(
        xkb_x11_state_new_from_device(keymap.get(), connection_, device));
    const std::uint32_t active = state ? xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE) : 0;
    keymap_ = XkbKeymap(std::move(keymap));
    layout_ = keymap_.asciiLayout(active);
}

} // namespace vantrel
