#pragma once

#include <QString>

#include <cstdint>

namespace vantrel {

/// Why a saved value can't be read.
struct DecodingError {
    enum class Kind : std::uint8_t { keyNotFound, typeMismatch, valueNotFound, dataCorrupted };

    Kind kind = Kind::dataCorrupted;
    /// Where in the document, as "profiles[3].target"; empty for the document itself.
    QString path;
    /// What is wrong there.
    QString debugDescription;

    /// Place and reason in one line.
    [[nodiscard]] QString message() const;

    /// The same error seen from one level up, where the value stands under `parent`.
    [[nodiscard]] DecodingError below(const QString &parent) const;

    friend bool operator==(const DecodingError &, const DecodingError &) = default;
};

} // namespace vantrel
