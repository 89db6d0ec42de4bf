#pragma once

#include "Tests/Platform/Linux/ScopedVariable.h"

#include <QProcess>
#include <QStringList>

#include <optional>

namespace vantrel::test {

/// An X server of a test's own, which no one sees. While it lives, the programs of this process use it.
class XServer {
public:
    XServer();
    ~XServer();
    Q_DISABLE_COPY_MOVE(XServer)

    /// Runs a program to its end, with an input, and returns its output. It must succeed.
    QByteArray run(const QString &program, const QStringList &arguments, const QByteArray &input = {}) const;

    /// As the user of the keyboard: "key ctrl+a", "keydown a".
    void type(const QString &command, const QString &keys) const;

private:
    QProcess server_;
    std::optional<ScopedVariable> display_;
    ScopedVariable platform_{"QT_QPA_PLATFORM", "xcb"};
    ScopedVariable bus_{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/such/bus"};
};

} // namespace vantrel::test
