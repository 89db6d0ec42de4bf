#include "Tests/Vantrel/Pictures/Pixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace vantrel::test {
namespace {

/// From the fullest pixel of each row, or of each column: where the drawing begins and ends.
std::pair<double, double> extent(const std::vector<double> &fullest)
{
    // Rounding leaves traces that are no drawing.
    const auto isDrawn = [](double share) { return share > 0.05; };
    const auto first = std::ranges::find_if(fullest, isDrawn);
    if (first == fullest.end())
        return {0, 0};
    const auto last = std::find_if(fullest.rbegin(), fullest.rend(), isDrawn);
    const auto begin = static_cast<double>(first - fullest.begin());
    const auto end = static_cast<double>(fullest.rend() - last);
    return {begin + 1 - *first, end - 1 + *last};
}

QRectF bounds(const QImage &image, const std::function<double(const QColor &)> &shareOf)
{
    std::vector<double> columns(static_cast<size_t>(image.width()));
    std::vector<double> rows(static_cast<size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double share = shareOf(image.pixelColor(x, y));
            double &column = columns[static_cast<size_t>(x)];
            double &row = rows[static_cast<size_t>(y)];
            column = std::max(column, share);
            row = std::max(row, share);
        }
    }
    const auto [left, right] = extent(columns);
    const auto [top, bottom] = extent(rows);
    return {left, top, right - left, bottom - top};
}

double luminance(const QColor &color)
{
    const auto linear = [](double level) {
        return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    };
    return (0.2126 * linear(color.redF())) + (0.7152 * linear(color.greenF())) + (0.0722 * linear(color.blueF()));
}

} // namespace

double whiteness(const QColor &pixel, const QColor &background)
{
    // At the oval's edge little is left of a colour, and its components are coarse.
    if (pixel.alpha() < 255)
        return 0;
    const auto share = [](int value, int from) { return static_cast<double>(value - from) / (255 - from); };
    return std::min({share(pixel.red(), background.red()), share(pixel.green(), background.green()),
                     share(pixel.blue(), background.blue())});
}

QRectF whiteBounds(const QImage &image, const QColor &background)
{
    return bounds(image, [&background](const QColor &pixel) { return whiteness(pixel, background); });
}

QRectF opaqueBounds(const QImage &image)
{
    return bounds(image, [](const QColor &pixel) { return pixel.alphaF(); });
}

QImage on(const QImage &image, const QColor &background)
{
    QImage result(image.size(), QImage::Format_RGB32);
    result.fill(background);
    QPainter(&result).drawImage(0, 0, image);
    return result;
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

double readableShare(const QImage &image, const QColor &background, double leastContrast)
{
    const QImage seen = on(image, background);
    int count = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x)
            count += contrast(seen.pixelColor(x, y), background) >= leastContrast ? 1 : 0;
    }
    return static_cast<double>(count) / (seen.width() * seen.height());
}

} // namespace vantrel::test
