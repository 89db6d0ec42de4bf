#pragma once

#include <QString>

#include <optional>

namespace vantrel {

/// Why something is no strings file, in words for the log.
struct StringsFileError {
    /// A place in a file's text; both numbers begin at 1. Columns count UTF-16 code units.
    struct Place {
        qsizetype line = 1;
        qsizetype column = 1;

        friend bool operator==(const Place &, const Place &) = default;
    };

    QString reason;
    /// None where the whole file is meant, and for property lists.
    std::optional<Place> place = std::nullopt;

    /// Place and reason in one line.
    [[nodiscard]] QString message() const;

    friend bool operator==(const StringsFileError &, const StringsFileError &) = default;
};

} // namespace vantrel
