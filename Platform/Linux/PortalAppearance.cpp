#include "Platform/Linux/PortalAppearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr const char *interfaceName = "org.freedesktop.portal.Settings";
constexpr auto objectPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto appearance = "org.freedesktop.appearance"_L1;
constexpr auto colorScheme = "color-scheme"_L1;

/// Of the values of "color-scheme" the one for dark windows; 0 is no preference, 2 light windows.
constexpr uint preferDark = 1;

} // namespace

SettingsPortal::SettingsPortal(const QString &owner, const QDBusConnection &bus)
    : QDBusAbstractInterface(owner, objectPath, interfaceName, bus, nullptr)
{
}

void PortalAppearance::observe(std::function<void(bool isDark)> changed)
{
    changed_ = std::move(changed);
    if (!bus_.isConnected())
        return;
    QDBusMessage read = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, objectPath,
                                                       QString::fromLatin1(interfaceName), u"Read"_s);
    read << QString(appearance) << QString(colorScheme);
    auto *call = new QDBusPendingCallWatcher(bus_.asyncCall(read), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        takeAnswer(call->reply());
        call->deleteLater();
    });
}

void PortalAppearance::takeAnswer(const QDBusMessage &answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty())
        return;
    portal_ = std::make_unique<SettingsPortal>(answer.service(), bus_);
    connect(portal_.get(), &SettingsPortal::SettingChanged, this,
            [this](const QString &space, const QString &key, const QDBusVariant &value) {
                if (space == appearance && key == colorScheme)
                    take(value.variant());
            });
    // An answer to Read is a variant in a variant.
    const auto outer = answer.arguments().constFirst().value<QDBusVariant>();
    take(outer.variant().value<QDBusVariant>().variant());
}

void PortalAppearance::take(const QVariant &scheme)
{
    changed_(scheme.toUInt() == preferDark);
}

} // namespace vantrel
