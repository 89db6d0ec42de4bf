#pragma once

#include <QString>

#include <expected>

namespace vantrel::Safari {

/// Why something couldn't be done with Safari, in words for the user. Main thread only, for the texts are translated.
struct Failure {
    QString message;
    /// Safari didn't answer in time.
    bool isTimeout = false;

    [[nodiscard]] static const Failure &accessibility();
    [[nodiscard]] static const Failure &automation();
    [[nodiscard]] static const Failure &windowNotOpened();
    [[nodiscard]] static const Failure &notStarted();
    [[nodiscard]] static const Failure &menuUnreadable();
    [[nodiscard]] static const Failure &timeOut();
    [[nodiscard]] static Failure noProfile(const QString &name);

    /// What a script means that failed with this text, which has no blanks around it.
    [[nodiscard]] static Failure ofScript(const QString &errorText);

    /// Whether it would be the same the next time: Safari hangs, or the user doesn't allow it.
    [[nodiscard]] bool isFatal() const;

    friend bool operator==(const Failure &, const Failure &) = default;
};

template <typename Value = void>
using Result = std::expected<Value, Failure>;

} // namespace vantrel::Safari
