#pragma once

#include "Platform/PlatformError.h"

#include <QCoroTask>
#include <QStringList>
#include <QUrl>

#include <expected>
#include <optional>

namespace vantrel {

/// An application that is installed.
struct Application {
    /// What identifies it to this system: its bundle on macOS, its desktop entry on Linux.
    QUrl url;
    QString name;

    friend bool operator==(const Application &, const Application &) = default;
};

/// The system's applications: which are there, and starting them.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// None when no such application is installed. Any thread.
    [[nodiscard]] virtual std::optional<Application> applicationWithBundleIdentifier(const QString &bundleID) const = 0;

    /// By which names the application is looked for; empty when it doesn't exist for this system. Any thread.
    [[nodiscard]] virtual QStringList searchedNames(const QString &bundleID) const = 0;

    /// What `openApplication` would start: the program, then its arguments. Any thread.
    [[nodiscard]] virtual std::expected<QStringList, PlatformError> commandLine(const QUrl &application,
                                                                                const QStringList &arguments) const = 0;

    /// Starts a new instance of the application with arguments and brings it to the front. It lives on when Vantrel
    /// ends. Done once the system has taken the start on; main thread.
    [[nodiscard]] virtual QCoro::Task<std::expected<void, PlatformError>> openApplication(QUrl application,
                                                                                          QStringList arguments) = 0;
};

} // namespace vantrel
