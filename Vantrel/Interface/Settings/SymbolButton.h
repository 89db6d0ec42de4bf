#pragma once

#include "Vantrel/Interface/Settings/SymbolIcons.h"

#include <QToolButton>

namespace vantrel {

/// A button without a frame that shows a symbol in the colour and about the height of texts.
class SymbolButton final : public QToolButton {
    Q_OBJECT

public:
    /// The icons must outlive it.
    SymbolButton(const SymbolIcons &icons, QString symbol, QWidget *parent = nullptr);

    void setSymbol(const QString &symbol);

    /// As narrow as a column of such buttons takes them: 20 points, and more where texts are larger.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent *event) override;

private:
    void draw();

    const SymbolIcons &icons_;
    QString symbol_;
};

} // namespace vantrel
