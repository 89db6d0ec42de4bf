#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace vantrel {

/// What a person typed into the search of a desktop, taken apart.
///
/// A word that is a link is to be opened, wherever it stands: "work https://example.org". Only full links count, with
/// their scheme, for "example.org" may as well be a part of a profile's name. All other words name the profile.
struct SearchTerms {
    /// Folded, none of them empty.
    QStringList words;
    QList<QUrl> links;

    /// Desktops hand the text over as a whole or word by word.
    [[nodiscard]] static SearchTerms parse(const QStringList &terms);

    [[nodiscard]] bool isEmpty() const { return words.isEmpty() && links.isEmpty(); }

    friend bool operator==(const SearchTerms &, const SearchTerms &) = default;
};

/// The full link that a text is, if a browser may be given it.
[[nodiscard]] std::optional<QUrl> openableLink(const QString &text);

} // namespace vantrel
