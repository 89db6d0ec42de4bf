#pragma once

#include <cstdint>

namespace vantrel {

/// An action can't run before the user has chosen a value for one of its parameters, be it for the first time or again
/// because the one chosen is gone.
struct NeedsValueError {
    enum class Parameter : std::uint8_t { target, profile };

    Parameter parameter = Parameter::target;

    friend bool operator==(const NeedsValueError &, const NeedsValueError &) = default;
};

} // namespace vantrel
