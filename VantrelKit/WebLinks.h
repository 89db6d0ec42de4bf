#pragma once

#include <QList>
#include <QUrl>

namespace vantrel {

/// The links that may be handed to a browser: those with the scheme http, https or file, in their order.
[[nodiscard]] QList<QUrl> openableLinks(const QList<QUrl> &links);

/// A link's text as browsers take it: all that a URL can't hold percent-encoded.
[[nodiscard]] QString linkText(const QUrl &link);

} // namespace vantrel
