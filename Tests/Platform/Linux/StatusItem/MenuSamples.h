#pragma once

#include "Platform/Menu.h"

#include <QColor>

#include <utility>

namespace vantrel::test {

/// A row that can be chosen.
[[nodiscard]] inline MenuItem command(const QString &id, const QString &title, std::function<void()> action = [] {})
{
    MenuItem item{.title = title, .id = id, .shortcut = {}, .icon = {}, .action = std::move(action)};
    return item;
}

/// A row that can't.
[[nodiscard]] inline MenuItem plainRow(MenuItem::Kind kind, const QString &title = {})
{
    return {.kind = kind, .title = title, .id = {}, .shortcut = {}, .icon = {}, .action = {}};
}

[[nodiscard]] inline QImage square(int pixels, QRgb color)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor::fromRgba(color));
    return image;
}

} // namespace vantrel::test
