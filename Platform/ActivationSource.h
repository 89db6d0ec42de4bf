#pragma once

#include <QProcessEnvironment>
#include <QString>

#include <cstdint>
#include <utility>

namespace vantrel {

/// What the desktop wants to know before it lets a program that was just started come to the front: that the user has
/// asked for it, and when. Whoever learns of the user's act notes it here, and whoever starts a program takes it from
/// here. Main thread only.
class ActivationSource {
public:
    /// A token of the Wayland protocol "xdg-activation", good for one start.
    void noteToken(const QString &token) { token_ = token; }
    /// A startup notification's identifier, good for one start.
    void noteStartupID(const QString &id) { startupID_ = id; }
    /// The X server's time of the last key or button, in milliseconds.
    void noteTime(std::uint32_t time) { time_ = time; }

    /// Adds to a program's variables what it needs. A token or an identifier is handed out once; without one, an
    /// identifier is made from the time of the last act, which is as good for all that follows from it.
    [[nodiscard]] QProcessEnvironment apply(QProcessEnvironment variables);

private:
    QString token_;
    QString startupID_;
    std::uint32_t time_ = 0;
    int count_ = 0;
};

} // namespace vantrel
