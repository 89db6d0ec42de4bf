#pragma once

#include <QIconEngine>
#include <QImage>

#include <functional>

namespace vantrel {

/// An icon that is drawn when it is first shown, at the size in device pixels at which it is shown: a menu of a
/// thousand profiles opens without drawing those that are out of sight.
class MenuIconEngine final : public QIconEngine {
public:
    using Drawing = std::function<QImage(int pixels)>;

    explicit MenuIconEngine(Drawing drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter *painter, const QRect &rectangle, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    [[nodiscard]] QIconEngine *clone() const override { return new MenuIconEngine(drawing_); }

private:
    Drawing drawing_;
};

} // namespace vantrel
