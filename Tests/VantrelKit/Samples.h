#pragma once

#include "Tests/VantrelKit/Printing.h"
#include "VantrelKit/Profile.h"

#include <QStringList>

/// Values that many tests share: browsers, profiles in a short notation, and texts that break careless code.
namespace vantrel::test {

inline const QString chrome = QStringLiteral("com.google.Chrome");
inline const QString brave = QStringLiteral("com.brave.Browser");
inline const QString edge = QStringLiteral("com.microsoft.edgemac");
inline const QString firefox = QStringLiteral("org.mozilla.firefox");
inline const QString zen = QStringLiteral("app.zen-browser.zen");
inline const QString safari = QStringLiteral("com.apple.Safari");
inline const QString unknownBrowser = QStringLiteral("org.example.browser");

/// The profiles that a text names, separated by blanks: "c:1" is Chrome's profile with the folder and the name "1",
/// "c:1=Work" has the name "Work", "c:private" is Chrome's private window. The letters: c Chrome, b Brave, e Edge,
/// f Firefox, z Zen, s Safari.
[[nodiscard]] QList<Profile> profiles(const QString &notation);

/// The opposite of `profiles`: what a test compares and shows.
[[nodiscard]] QString notation(const QList<Profile> &profiles);

[[nodiscard]] QStringList ids(const QList<Profile> &profiles);

/// Texts with blanks, quotes, characters of shells, links and formats, line ends, and many scripts; all valid Unicode,
/// and none of them empty.
[[nodiscard]] const QStringList &oddTexts();

/// Texts with half a surrogate pair, which no encoding can hold.
[[nodiscard]] const QStringList &loneSurrogates();

} // namespace vantrel::test
