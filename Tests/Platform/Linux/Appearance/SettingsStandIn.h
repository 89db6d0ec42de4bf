#pragma once

#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/StatusItem/OwnConnection.h"

#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

#include <optional>

namespace vantrel::test {

/// The portal's settings on a bus, in a connection of their own: the colour scheme alone.
class SettingsStandIn final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    /// Without a scheme it answers with an error.
    SettingsStandIn(const PrivateBus &bus, std::optional<uint> scheme) : connection_(bus.address()), scheme_(scheme)
    {
        connection_->registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                    QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        connection_->registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    [[nodiscard]] int questions() const { return questions_; }

    void change(const QString &space, const QString &key, uint value)
    {
        Q_EMIT SettingChanged(space, key, QDBusVariant(value));
    }

    // The protocol's names.
    // NOLINTBEGIN(readability-identifier-naming)
public Q_SLOTS:
    QDBusVariant Read(const QString &space, const QString &key)
    {
        ++questions_;
        if (!scheme_ || space != QStringLiteral("org.freedesktop.appearance") ||
            key != QStringLiteral("color-scheme")) {
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("no such setting"));
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(*scheme_)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &space, const QString &key, const QDBusVariant &value);
    // NOLINTEND(readability-identifier-naming)

private:
    OwnConnection connection_;
    std::optional<uint> scheme_;
    int questions_ = 0;
};

} // namespace vantrel::test
