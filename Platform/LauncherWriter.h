#pragma once

#include "Platform/PlatformError.h"
#include "Platform/SavePanel.h"
#include "VantrelKit/LaunchLink.h"

#include <QCoroTask>
#include <QImage>
#include <QUrl>

#include <expected>
#include <functional>
#include <optional>

namespace vantrel {

/// What a launcher is to be.
struct Launcher {
    /// Another profile that it offers beside its own.
    struct Action {
        QString name;
        LaunchLink link;
    };

    QString profileID;
    /// The profile with its browser, as the user reads it.
    QString title;
    LaunchLink link;
    std::optional<Action> privateWindow = std::nullopt;
    /// Draws a square with a side of that many pixels.
    std::function<QImage(int pixels)> icon;
};

/// Makes launchers in the form that the system has for them. Main thread only; must outlive its tasks.
class LauncherWriter {
public:
    virtual ~LauncherWriter() = default;

    /// What the user is asked before a launcher of that title is made.
    [[nodiscard]] virtual SavePanel::Panel panel(const QString &title) const = 0;

    /// The path of a profile's launcher in a folder; in the system's usual one when none is given.
    [[nodiscard]] virtual QString placeIn(const std::optional<QString> &folder, const QString &profileID,
                                          const QString &title) const = 0;

    /// Writes a launcher, whose URL it answers. One that is there already is replaced, or left as it was by a failure.
    [[nodiscard]] virtual QCoro::Task<std::expected<QUrl, PlatformError>> write(Launcher launcher, QString place) = 0;

    /// Fails when there is no launcher of the profile at that place.
    [[nodiscard]] virtual QCoro::Task<std::expected<void, PlatformError>> remove(QString profileID, QString place) = 0;
};

} // namespace vantrel
