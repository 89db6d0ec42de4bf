#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace vantrel::test {

/// As much of the language as it takes to see whether a script is well formed and what it says: words, numbers and
/// strings with their escapes, and a statement a line.
struct AppleScript {
    struct Token {
        QString text;
        bool isString = false;
    };
    using Statement = QList<Token>;

    QList<Statement> statements;
    /// Whether the script prints the items of the list that its one statement yields.
    bool isList = false;

    /// None when a string doesn't end or holds an escape that doesn't exist.
    [[nodiscard]] static std::optional<AppleScript> parse(const QString &script);

    /// The texts that stand where a pattern has `%s`, a string, and `%n`, a number; all its other words are to be the
    /// same. None when the statement is another one.
    [[nodiscard]] static std::optional<QStringList> match(const Statement &statement, const QString &pattern);
};

} // namespace vantrel::test
