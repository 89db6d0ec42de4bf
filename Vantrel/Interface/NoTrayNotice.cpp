#include "Vantrel/Interface/NoTrayNotice.h"

#include <QCoreApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(NoTrayNotice)
};

} // namespace

void NoTrayNotice::showOnce()
{
    const QString key = u"toldThatThereIsNoTray"_s;
    if (defaults_.value(key).toBool())
        return;
    defaults_.setValue(key, true);
    //: Title of the notice on desktops without a tray.
    auto *box = new QMessageBox(QMessageBox::Information, u"Vantrel"_s, Texts::tr("This desktop has no tray"));
    //: Notice on desktops without a tray. The placeholder is a command.
    box->setInformativeText(
        Texts::tr("Vantrel is running, but there is no place for its symbol. Start Vantrel again to "
                  "open its settings, or give the command “%1” a keyboard shortcut of your desktop "
                  "to open its menu.")
            .arg(u"vantrel menu"_s));
    box->setAttribute(Qt::WA_DeleteOnClose);
    // The settings that it speaks of can be opened beside it.
    box->setWindowModality(Qt::NonModal);
    policy_.activate();
    box->show();
}

} // namespace vantrel
