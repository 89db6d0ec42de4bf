#pragma once

#include "Vantrel/Settings/BrowserSection.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace vantrel {

class PictureView;

/// A browser's icon and name, and the button that searches a Safari.
class BrowserHeader final : public QWidget {
    Q_OBJECT

public:
    /// The browser's icon, as `PictureView::Drawing`; asked for when it is first seen.
    using Icon = std::function<QImage(int pixels)>;

    BrowserHeader(const BrowserSection &section, Icon icon, QWidget *parent = nullptr);

    void setSection(const BrowserSection &section);

    /// Null but for a Safari.
    [[nodiscard]] QPushButton *button() const { return button_; }

Q_SIGNALS:
    void searchAsked();

private:
    QLabel *name_;
    QPushButton *button_ = nullptr;
};

} // namespace vantrel
