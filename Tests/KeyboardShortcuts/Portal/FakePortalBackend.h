#pragma once

#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/StatusItem/OwnConnection.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

namespace vantrel::test {

/// The part of a desktop that its portal asks for shortcuts, which a test plays.
class FakePortalBackend final : public QDBusVirtualObject {
public:
    static constexpr QLatin1StringView serviceName{"org.freedesktop.impl.portal.desktop.fake"};

    explicit FakePortalBackend(const PrivateBus &bus);
    ~FakePortalBackend() override;
    Q_DISABLE_COPY_MOVE(FakePortalBackend)

    /// What was called, without arguments; a call of BindShortcuts with "id=preferred trigger" of each.
    [[nodiscard]] const QStringList &calls() const { return calls_; }
    /// What the user answers from now on: 0 for yes.
    void setResponse(uint response) { response_ = response; }

    void press(const QString &id) { report(QStringLiteral("Activated"), id); }
    void release(const QString &id) { report(QStringLiteral("Deactivated"), id); }
    void closeSession();

    [[nodiscard]] QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    void report(const QString &signal, const QString &id);
    [[nodiscard]] QVariantMap bound(const QDBusMessage &message);
    [[nodiscard]] bool send(const QString &path, const QString &interface, const QString &signal,
                            const QVariantList &arguments);

    OwnConnection connection_;
    QStringList calls_;
    uint response_ = 0;
    QString session_;
};

} // namespace vantrel::test
