#pragma once

#include "Vantrel/FailureAlert.h"
#include "Vantrel/Interface/FileSavePanel.h"
#include "Vantrel/Launchers/LauncherMaker.h"
#include "Vantrel/Launchers/LauncherTools.h"
#include "Vantrel/ProfileCatalogue.h"

#include <QHash>

#include <optional>

namespace vantrel {

/// Makes launchers when the user asks for one, and has the browsers' icons. What that takes is made when it is first
/// needed. Main thread only; lives as long as the app.
class ProfileLaunchers {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        ActivationPolicy &activationPolicy;
        FailureAlert &alert;
        LogSink &log;
        /// Null where the toolkit's panel is shown.
        SavePanel *panel = nullptr;
    };

    explicit ProfileLaunchers(const Environment &environment) : environment_(environment) {}

    /// Asks where to, and tells the user when it fails.
    void make(const Profile &profile, const ProfileCatalogue &catalogue);

    /// A browser's icon, a square with a side of that many device pixels; null when it has none.
    [[nodiscard]] QImage browserIcon(const QUrl &application, int pixels);

private:
    [[nodiscard]] LauncherTools &tools();
    [[nodiscard]] LauncherMaker &maker();
    QCoro::Task<> makeAndTell(Profile profile, QString title, LauncherIcon icon);

    Environment environment_;
    FileSavePanel ownPanel_;
    std::optional<LauncherTools> tools_;
    std::optional<LauncherMaker> maker_;
    /// By the application's URL; one size is shown at a time.
    QHash<QUrl, QImage> icons_;
};

} // namespace vantrel
