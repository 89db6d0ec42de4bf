#pragma once

#include <QString>

namespace vantrel {

/// What the operating system refused, in words for the user.
struct PlatformError {
    QString message;

    friend bool operator==(const PlatformError &, const PlatformError &) = default;
};

} // namespace vantrel
