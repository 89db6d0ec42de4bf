#pragma once

#include "KeyboardShortcuts/Portal/PortalShortcut.h"
#include "Tests/Platform/Linux/PrivateBus.h"
#include "Tests/Platform/Linux/StatusItem/OwnConnection.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>

#include <optional>

namespace vantrel::test {

/// A desktop portal that a test plays, in a connection of its own.
class FakePortal final : public QDBusVirtualObject {
public:
    struct Options {
        /// Null: without the interface.
        std::optional<uint> version = 1;
        bool hasRegistry = false;
        /// The response to each of these requests; null when there is none before `answer`.
        std::optional<uint> created = 0;
        std::optional<uint> bound = 0;
        /// The error with which requests for sessions end.
        QString refusal = {};
        QString sessionPath = QStringLiteral("/org/freedesktop/portal/desktop/session/1_1/s");
    };

    explicit FakePortal(const PrivateBus &bus) : FakePortal(bus, Options()) {}
    FakePortal(const PrivateBus &bus, Options options);
    ~FakePortal() override;
    Q_DISABLE_COPY_MOVE(FakePortal)

    [[nodiscard]] Options &options() { return options_; }

    /// What was called, each as "method argument…"; a call of BindShortcuts with "id=preferred trigger" of each.
    [[nodiscard]] const QStringList &calls() const { return calls_; }
    [[nodiscard]] int count(const QString &method) const;
    /// The descriptions of the last call of BindShortcuts.
    [[nodiscard]] const QStringList &descriptions() const { return descriptions_; }
    /// How many requests have no answer yet.
    [[nodiscard]] qsizetype waiting() const { return waiting_.size(); }

    /// Responds to the request that has waited longest.
    void answer(uint response);
    /// What is granted for an id instead of "Press " and the wish; null: it is left out.
    void grant(const QString &id, const std::optional<QString> &trigger) { granted_.insert(id, trigger); }

    void press(const QString &id, const QVariantMap &options = {}) { report(QStringLiteral("Activated"), id, options); }
    void release(const QString &id, const QVariantMap &options = {})
    {
        report(QStringLiteral("Deactivated"), id, options);
    }
    /// The same from a session of another program.
    void pressElsewhere(const QString &id);
    void changeTrigger(const QString &id, const QString &trigger);
    void closeSession();

    [[nodiscard]] QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    struct Request {
        QString path;
        QVariantMap results;
    };

    void report(const QString &signal, const QString &id, const QVariantMap &options);
    void send(const QString &path, const QString &interface, const QString &signal, const QVariantList &arguments);
    void createSession(const QDBusMessage &message);
    void bindShortcuts(const QDBusMessage &message);
    void respond(const QDBusMessage &message, const QVariantMap &options, const QVariantMap &results,
                 std::optional<uint> response);

    OwnConnection connection_;
    Options options_;
    QStringList calls_;
    QStringList descriptions_;
    QMap<QString, std::optional<QString>> granted_;
    QList<Request> waiting_;
    int sessions_ = 0;
};

} // namespace vantrel::test
