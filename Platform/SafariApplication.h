#pragma once

#include <QCoroTask>
#include <QList>
#include <QStringList>

#include <optional>

namespace vantrel {

/// Safari as the system's scripting bridge reaches it. Main thread only; what is sent to Safari is sent on another
/// thread, for an answer may take seconds. Must outlive what is asked of it.
class SafariApplication {
public:
    virtual ~SafariApplication() = default;

    /// Brings it to the front, and starts it if need be. Done once the system has taken that on.
    [[nodiscard]] virtual QCoro::Task<> activate() = 0;
    [[nodiscard]] virtual bool isRunning() const = 0;

    /// The ids of its windows, the front one first. None when Safari doesn't answer.
    [[nodiscard]] virtual QCoro::Task<std::optional<QList<qint64>>> windowIDs() = 0;

    /// The URLs of a window's tabs in their order, an empty text for a tab without. None when they can't be read.
    [[nodiscard]] virtual QCoro::Task<std::optional<QStringList>> tabURLs(qint64 windowID) = 0;

    /// Adds an empty tab after the others and says which it is, counted from 0. None when it can't be made.
    [[nodiscard]] virtual QCoro::Task<std::optional<qsizetype>> addTab(qint64 windowID) = 0;
    [[nodiscard]] virtual QCoro::Task<> setURL(qint64 windowID, qsizetype tab, QString url) = 0;
    [[nodiscard]] virtual QCoro::Task<> setCurrentTab(qint64 windowID, qsizetype tab) = 0;
};

} // namespace vantrel
