#pragma once

#include <QProcess>
#include <QStringList>

#include <memory>

namespace vantrel::test {

/// A process that does as a browser does: see StandInBrowser.cpp. Killed when it goes.
class StandIn {
public:
    /// Done once it holds its locks. `bus` is the session bus's address for it.
    explicit StandIn(const QStringList &arguments, const QString &bus = {});
    ~StandIn();
    Q_DISABLE_COPY_MOVE(StandIn)

    [[nodiscard]] qint64 process() const { return process_.processId(); }

    /// Whether this program holds a handle of the process, apart from that which QProcess may have made.
    [[nodiscard]] bool isWatched() const { return handleCount() > ownHandles_; }

    /// Each is done once the process has ended, and lets no event loop run.
    void close();
    void kill();

private:
    [[nodiscard]] int handleCount() const;

    QProcess process_;
    int ownHandles_ = 0;
};

} // namespace vantrel::test
