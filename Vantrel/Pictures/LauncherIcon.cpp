#include "Vantrel/Pictures/LauncherIcon.h"

#include <QColorSpace>
#include <QPainter>

#include <algorithm>

namespace vantrel {
namespace {

constexpr double borderShare = 0.025;
constexpr double widestBorder = 1.0;
constexpr double diameterShare = 0.46;
/// From the left and the lower edge of the square.
constexpr double rightShare = 0.9;
constexpr double bottomShare = 0.1;

/// 0.85 of 255: what has this alpha becomes opaque.
constexpr int fullStrength = 217;

void strengthenPixel(uchar *pixel)
{
    const int alpha = pixel[3];
    if (alpha == 0 || alpha == 255)
        return;
    const int strong = std::min(alpha * 255 / fullStrength, 255);
    for (int channel = 0; channel < 3; ++channel)
        pixel[channel] = static_cast<uchar>(std::min(strong * pixel[channel] / alpha, strong));
    pixel[3] = static_cast<uchar>(strong);
}

void drawWhole(QImage &image, const QImage &icon)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Reduced beforehand: the painter picks single pixels of a picture that is much larger than its place.
    painter.drawImage(QPoint(0, 0), icon.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                                        .scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void drawBadge(QImage &image, const ProfileIcon &profile)
{
    const QRectF badge = badgeRectangle(image.width());
    const double border = badgeBorder(image.width());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(badge.adjusted(-border, -border, border, border));
    profile.draw(painter, badge);
}

} // namespace

double badgeBorder(int pixels)
{
    return std::min(borderShare * pixels, widestBorder);
}

QRectF badgeRectangle(int pixels)
{
    const double border = badgeBorder(pixels);
    const double diameter = diameterShare * pixels;
    const double left = (rightShare * pixels) - border - diameter;
    const double fromBottom = (bottomShare * pixels) + border;
    return {left, pixels - fromBottom - diameter, diameter, diameter};
}

void strengthen(QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        uchar *pixel = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x, pixel += 4)
            strengthenPixel(pixel);
    }
}

QImage LauncherIcon::image(int pixels) const
{
    QImage image(pixels, pixels, QImage::Format_RGBA8888_Premultiplied);
    if (image.isNull())
        return image;
    image.setColorSpace(QColorSpace::SRgb);
    image.fill(Qt::transparent);
    const QImage icon = browser ? browser(pixels) : QImage();
    if (icon.isNull()) {
        QPainter painter(&image);
        profile.draw(painter, image.rect());
        return image;
    }
    drawWhole(image, icon);
    strengthen(image);
    drawBadge(image, profile);
    return image;
}

} // namespace vantrel
