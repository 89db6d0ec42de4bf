#pragma once

#include "Tests/VantrelKit/Printing.h"

#include <QString>

#include <functional>

namespace vantrel::test {

/// What a check answers in a process of its own that has no rights but an ordinary user's. Root may read everything, so
/// a refusal can't be seen otherwise. The process is ended after a minute, which also makes it the place for checks
/// that would block for ever if they failed. A process that ends without an answer is reported in words instead.
[[nodiscard]] QString answerOfUnprivilegedProcess(const std::function<QString()> &check);

/// What discovery answered, in one line: the profiles as "NAME in FOLDER", separated by semicolons, or the error.
template <typename Result>
[[nodiscard]] QString described(const Result &result)
{
    if (!result) {
        const bool denied = result.error().kind == ProfileDiscoveryError::Kind::accessDenied;
        return (denied ? QStringLiteral("accessDenied ") : QStringLiteral("readFailed ")) + result.error().path;
    }
    QStringList parts;
    for (const DiscoveredProfile &profile : *result)
        parts.append(profile.name + QStringLiteral(" in ") + profile.folder);
    return parts.isEmpty() ? QStringLiteral("no profiles") : parts.join(QStringLiteral("; "));
}

} // namespace vantrel::test
