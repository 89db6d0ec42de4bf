#pragma once

#include "Platform/Menu.h"

#include <QBuffer>
#include <QColor>

#include <utility>

namespace vantrel::test {

/// A row that can be chosen.
[[nodiscard]] inline MenuItem command(const QString &id, const QString &title, std::function<void()> action = [] {})
{
    MenuItem item{.title = title, .id = id, .action = std::move(action)};
    return item;
}

/// A row that can't.
[[nodiscard]] inline MenuItem plainRow(MenuItem::Kind kind, const QString &title = {})
{
    return {.kind = kind, .title = title, .action = {}};
}

[[nodiscard]] inline QImage square(int pixels, QRgb color)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor::fromRgba(color));
    return image;
}

[[nodiscard]] inline QByteArray squarePNG(int pixels, QRgb color)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    return square(pixels, color).save(&file, "PNG") ? file.data() : QByteArray();
}

} // namespace vantrel::test
