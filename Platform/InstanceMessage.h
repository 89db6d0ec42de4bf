#pragma once

#include "Platform/InstanceRequest.h"
#include "Platform/PlatformError.h"

#include <QByteArray>

#include <expected>
#include <optional>

/// What another process and the running app tell each other: the asker one line, a request, and the app one in answer.
/// Each line is a JSON object with the member "version", which is 1.
///
///     {"version": 1, "kind": "activate" | "open" | "action", "links": [TEXT…], "action": TEXT,
///      "activationToken": TEXT, "startupID": TEXT}
///     {"version": 1, "accepted": true | false, "reason": TEXT}
///
/// Every member but "version", "kind" and "accepted" may be missing. Unknown ones are passed over.
namespace vantrel::InstanceMessage {

/// Longer lines, with their end, are refused by both sides.
inline constexpr qsizetype maximumSize = qsizetype(16) * 1024 * 1024;

struct Answer {
    bool isAccepted = false;
    /// Why not, for the user.
    QString reason = {};

    friend bool operator==(const Answer &, const Answer &) = default;
};

/// Lines with their end.
[[nodiscard]] QByteArray line(const InstanceRequest &request);
[[nodiscard]] QByteArray line(const Answer &answer);

/// Fails with the reason for the asker.
[[nodiscard]] std::expected<InstanceRequest, QString> parsedRequest(const QByteArray &line);

/// None when it is no answer.
[[nodiscard]] std::optional<Answer> parsedAnswer(const QByteArray &line);

/// The reason for a request of more than `maximumSize`.
[[nodiscard]] QString tooLong();

/// What the asker is told when the app hangs, and when it refuses.
[[nodiscard]] PlatformError noAnswer();
[[nodiscard]] PlatformError refused(const QString &reason);

} // namespace vantrel::InstanceMessage
