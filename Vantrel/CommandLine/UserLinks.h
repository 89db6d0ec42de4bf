#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

namespace vantrel {

/// Links as a person types them: full URLs, host names ("example.com"), or names of files, also relative ones.
struct UserLinks {
    /// The links that a browser may be given.
    QList<QUrl> openable;
    /// What is left out because it is no link of a kind that browsers are given, as it was typed.
    QStringList rejected;

    [[nodiscard]] static UserLinks parse(const QStringList &texts, const QString &workingDirectory);

    friend bool operator==(const UserLinks &, const UserLinks &) = default;
};

} // namespace vantrel
