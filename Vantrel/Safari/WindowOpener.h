#pragma once

#include "Platform/SafariApplication.h"
#include "Vantrel/Clock.h"
#include "Vantrel/Safari/Connector.h"
#include "Vantrel/Safari/Scripting.h"
#include "Vantrel/Safari/Turns.h"

#include <functional>

namespace vantrel::Safari {

/// Has Safari open a window and sees to it that one comes. Menus and keys say nothing about what they did, so windows
/// are counted before and after. One window at a time: of two that come together nobody could tell which is whose.
/// Main thread only.
class WindowOpener {
public:
    /// Makes Safari open the window. Called with 1, and with the next number when no window came.
    using Attempt = std::function<QCoro::Task<Result<>>(int number)>;

    /// What it works with; all must outlive it.
    struct Environment {
        Scripting &scripting;
        Clock &clock;
    };

    explicit WindowOpener(const Environment &environment) : environment_(environment) {}

    /// The id of the new window, which has been brought to the front of Safari's others. `name` is Safari's. Windows
    /// that came besides are closed if they show nothing.
    [[nodiscard]] QCoro::Task<Result<qint64>> open(Connection connection, QString name, Attempt attempt);

private:
    using WindowIDs = std::optional<QList<qint64>>;

    [[nodiscard]] QCoro::Task<WindowIDs> windowsBefore(Connection connection);
    [[nodiscard]] QCoro::Task<WindowIDs> windowsAfter(Connection connection, QList<qint64> before);
    [[nodiscard]] QCoro::Task<> closeIfBlank(Connection connection, QString name, qint64 windowID);

    Environment environment_;
    Turns turns_;
};

} // namespace vantrel::Safari
