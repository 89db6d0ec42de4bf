#pragma once

#include <QByteArray>
#include <QString>

namespace vantrel {

/// A profile as parts of the system show it and give it back.
struct SystemProfile {
    QString id;
    /// The name that the user sees.
    QString name;
    /// The browser's name; its identifier when it isn't installed.
    QString browser;
    /// Both, as the user reads them: "Google Chrome – Work".
    QString title;
    /// Its round picture, a PNG file.
    QByteArray picture;

    friend bool operator==(const SystemProfile &, const SystemProfile &) = default;
};

} // namespace vantrel
