#pragma once

#include "VantrelKit/ProfileTarget.h"

#include <QList>
#include <QStringList>
#include <QUrl>

namespace vantrel {

/// The arguments of one start of a browser, without the program itself.
struct LaunchCommand {
    QStringList arguments;

    /// The starts that open a target with links, to be run one after the other. Links that no browser should get are
    /// left out. Empty for Safari, which takes no arguments; otherwise there is at least one.
    [[nodiscard]] static QList<LaunchCommand> commands(const QString &browserBundleID, const QList<QUrl> &links,
                                                       const ProfileTarget &target);

    friend bool operator==(const LaunchCommand &, const LaunchCommand &) = default;
};

} // namespace vantrel
