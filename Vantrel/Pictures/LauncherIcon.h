#pragma once

#include "Vantrel/Pictures/ProfileIcon.h"

#include <functional>

namespace vantrel {

/// A launcher's icon: the browser's, with the profile's as a badge in its lower right corner. Needs a QGuiApplication;
/// main thread.
struct LauncherIcon {
    /// The browser's icon with a side of at least that many device pixels, where there is one so large; a null image
    /// when there is none at all, in which case the profile's icon stands alone.
    std::function<QImage(int pixels)> browser;
    ProfileIcon profile;

    /// A square with a side of that many pixels; a null image for less than one, and when there is no memory for it.
    [[nodiscard]] QImage image(int pixels) const;
};

/// Makes what is neither opaque nor transparent more opaque, and leaves its hue: soft shadows around a browser's icon
/// would look faint beside the badge. The image has premultiplied alpha, stored last.
void strengthen(QImage &image);

/// Where the badge is drawn in a square with that side, from its upper left corner, without its white border; the
/// border's width.
[[nodiscard]] QRectF badgeRectangle(int pixels);
[[nodiscard]] double badgeBorder(int pixels);

} // namespace vantrel
