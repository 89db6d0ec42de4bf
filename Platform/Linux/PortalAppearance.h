#pragma once

#include "Platform/Appearance.h"

#include <QDBusAbstractInterface>
#include <QDBusVariant>

#include <memory>

namespace vantrel {

/// The portal's settings. `owner` is its unique name: looking for that by another one would make Qt wait for the bus.
class SettingsPortal final : public QDBusAbstractInterface {
    Q_OBJECT

public:
    SettingsPortal(const QString &owner, const QDBusConnection &bus);

Q_SIGNALS:
    // The protocol's name.
    // NOLINTNEXTLINE(readability-identifier-naming)
    void SettingChanged(const QString &space, const QString &key, const QDBusVariant &value);
};

/// What the desktop's settings say, through `org.freedesktop.portal.Settings`. Where there is no portal nothing is ever
/// said.
class PortalAppearance final : public QObject, public Appearance {
public:
    explicit PortalAppearance(QDBusConnection bus) : bus_(std::move(bus)) {}

    void observe(std::function<void(bool isDark)> changed) override;

private:
    void takeAnswer(const QDBusMessage &answer);
    void take(const QVariant &scheme);

    QDBusConnection bus_;
    std::function<void(bool isDark)> changed_;
    std::unique_ptr<SettingsPortal> portal_;
};

} // namespace vantrel
