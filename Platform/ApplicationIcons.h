#pragma once

#include <QImage>
#include <QUrl>

namespace vantrel {

/// The icons of installed applications. Needs a QGuiApplication; main thread only.
class ApplicationIcons {
public:
    virtual ~ApplicationIcons() = default;

    /// The icon of the application at a URL that the workspace gave, with a side of at least that many device pixels
    /// where there is one so large. Null when there is none that can be read.
    [[nodiscard]] virtual QImage icon(const QUrl &application, int pixels) const = 0;
};

} // namespace vantrel
