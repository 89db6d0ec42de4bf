#pragma once

#include <QString>

#include <cstdio>

namespace vantrel {

/// Where a command writes: results on one stream, messages on another, as UTF-8.
class Output {
public:
    Output(std::FILE *results, std::FILE *messages) : results_(results), messages_(messages) {}

    /// One line of results.
    void line(const QString &text);

    /// A message for the person who gave the command, with the program's name before it. Control characters are made
    /// visible: a message may quote what came from a file or a link.
    void message(const QString &text);

    /// Writes out what is still held back; false when the results could not be written, as on a full disk.
    [[nodiscard]] bool finish();

private:
    std::FILE *results_;
    std::FILE *messages_;
};

} // namespace vantrel
