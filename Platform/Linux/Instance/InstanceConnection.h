#pragma once

#include "Platform/ApplicationInstance.h"
#include "Platform/InstanceMessage.h"
#include "Platform/Linux/OwnedDescriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

namespace vantrel {

/// One process that has connected to the running app: reads its request, answers, and goes. Deletes itself.
class InstanceConnection final : public QObject {
public:
    /// `socket` doesn't block. `handler` is called from the event loop.
    InstanceConnection(OwnedDescriptor socket, ApplicationInstance::Handler handler, QObject *parent);

private:
    void read();
    void giveUp();
    void takeOn(const QByteArray &line);
    void refuse(const QString &reason);
    /// False when nobody waits for the answer any more.
    [[nodiscard]] bool finish(const InstanceMessage::Answer &answer);
    void close();

    OwnedDescriptor socket_;
    ApplicationInstance::Handler handler_;
    QSocketNotifier notifier_;
    /// Runs only while the process has not asked yet.
    QTimer patience_;
    QByteArray received_;
};

} // namespace vantrel
