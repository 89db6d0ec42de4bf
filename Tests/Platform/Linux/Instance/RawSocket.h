#pragma once

#include "Platform/Linux/OwnedDescriptor.h"

#include <QByteArray>
#include <QString>

namespace vantrel::test {

/// Listens as an app that does only what a test says.
class RawListener {
public:
    /// `queueLength` is how many more than one can wait to be accepted. The socket's file replaces what is there, and
    /// stays.
    explicit RawListener(const QString &path, int queueLength = 8);

    /// The next connection. Waits for it, but not for ever: closed when none comes.
    [[nodiscard]] OwnedDescriptor accept() const;

private:
    OwnedDescriptor socket_;
};

/// Closed when nobody listens.
[[nodiscard]] OwnedDescriptor connectedTo(const QString &path);

/// False when the other end stops reading or listening.
[[nodiscard]] bool sendAll(const OwnedDescriptor &socket, const QByteArray &bytes);

/// A line with its end; what there was when the other end closed before, or said no more for long.
[[nodiscard]] QByteArray receivedLine(const OwnedDescriptor &socket);

} // namespace vantrel::test
