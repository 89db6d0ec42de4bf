#pragma once

#include "Platform/ActivationPolicy.h"
#include "Platform/FileSystem.h"
#include "Platform/LauncherWriter.h"
#include "Platform/LogChannel.h"
#include "Platform/SavePanel.h"
#include "Vantrel/Pictures/LauncherIcon.h"
#include "VantrelKit/Profile.h"

#include <QCoroTask>

namespace vantrel {

/// Makes launchers where the user wants them. Main thread only; lives as long as the app, for its tasks refer to it.
class LauncherMaker {
public:
    /// What the user is told.
    struct Failure {
        QString message;

        friend bool operator==(const Failure &, const Failure &) = default;
    };

    /// The URL of what was made; none when the user cancelled.
    using Result = std::expected<std::optional<QUrl>, Failure>;

    /// What it works with; all must outlive it.
    struct Environment {
        LauncherWriter &writer;
        FileSystem &files;
        SavePanel &panel;
        ActivationPolicy &activationPolicy;
        LogSink &log;
    };

    explicit LauncherMaker(const Environment &environment);

    /// Asks for the place and makes the profile's launcher there. `title` is the profile with its browser.
    [[nodiscard]] QCoro::Task<Result> make(Profile profile, QString title, LauncherIcon icon);

    /// Above a failure's message.
    [[nodiscard]] static QString alertTitle();

private:
    [[nodiscard]] QCoro::Task<std::optional<QString>> askForPlace(QString profileID, QString title);

    Environment environment_;
    LogChannel log_;
};

} // namespace vantrel
