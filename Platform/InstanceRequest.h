#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace vantrel {

/// What somebody outside asks of the running app.
struct InstanceRequest {
    enum class Kind : std::uint8_t {
        /// To show itself, as a second start does.
        activate,
        /// To open links, each by itself, in their order.
        open,
        /// To do something by its name, such as "menu".
        action,
    };

    Kind kind = Kind::activate;
    /// For `open`: any texts; what isn't a link is for the receiver to say.
    QStringList links = {};
    /// For `action`.
    QString action = {};
    /// What lets a window come to the front on the asker's behalf: the values of $XDG_ACTIVATION_TOKEN and
    /// $DESKTOP_STARTUP_ID. Empty for none.
    QString activationToken = {};
    QString startupID = {};

    friend bool operator==(const InstanceRequest &, const InstanceRequest &) = default;
};

} // namespace vantrel
