#pragma once

#include <QApplication>
#include <QMessageBox>

namespace vantrel::test {

/// The message box that is there, shown or not; null for none.
[[nodiscard]] inline QMessageBox *openBox()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *box = qobject_cast<QMessageBox *>(widget))
            return box;
    }
    return nullptr;
}

} // namespace vantrel::test
