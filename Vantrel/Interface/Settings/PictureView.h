#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

namespace vantrel {

/// A square picture that is drawn for the screen's pixels, as high as the text beside it or a little more.
class PictureView final : public QWidget {
    Q_OBJECT

public:
    /// Draws a square with a side of that many device pixels; a null image leaves it empty.
    using Drawing = std::function<QImage(int pixels)>;

    /// The side is that many times the height of the text.
    PictureView(double side, Drawing drawing, QWidget *parent = nullptr);

    void setDrawing(Drawing drawing);
    void setOpacity(double opacity);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    double side_;
    Drawing drawing_;
    double opacity_ = 1;
};

} // namespace vantrel
