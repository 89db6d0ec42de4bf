#include "Vantrel/Interface/AlertBox.h"

#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace vantrel {

void AlertBox::show(const QString &title, const QString &message)
{
    auto *box = new QMessageBox(QMessageBox::Warning, u"Vantrel"_s, title, QMessageBox::Ok);
    // Names come from browsers and links: they are not to be read as markup.
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(message);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::ApplicationModal);
    policy_.activate();
    box->show();
    box->raise();
    box->activateWindow();
}

} // namespace vantrel
