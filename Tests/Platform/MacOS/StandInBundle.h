#pragma once

#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QStringList>
#include <QUrl>

#include <optional>

namespace vantrel::test {

/// An application bundle of a test's own that the system knows under a browser's identifier. Its instances end with it.
class StandInBundle {
public:
    enum class State : std::uint8_t { whole, withoutProgram };

    explicit StandInBundle(QString bundleID, State state = State::whole);
    ~StandInBundle();
    Q_DISABLE_COPY_MOVE(StandInBundle)

    [[nodiscard]] QUrl url() const;

    /// Starts another instance. Done once the system lists it, and it is ready.
    void start();
    /// Ends the instance that was started last. Done once it has ended, of which the event loop hears later.
    void end();
    /// Ends those that the system lists, whoever started them. Doesn't wait.
    void endAll() const;

    /// The arguments of the latest instance, which are waited for and then forgotten. None when there is none in time.
    [[nodiscard]] std::optional<QStringList> takeArguments();

private:
    [[nodiscard]] QList<qint64> processes() const;

    QString bundleID_;
    TemporaryFolder folder_;
    QList<qint64> started_;
};

} // namespace vantrel::test
