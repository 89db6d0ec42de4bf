#include "Vantrel/Interface/Settings/LaunchAtLoginToggle.h"

namespace vantrel {

LaunchAtLoginToggle::LaunchAtLoginToggle(LoginItem &item, FailureAlert &alert, QWidget *parent)
    //: Switch in the settings: the program starts with the user's session.
    : QCheckBox(tr("Open at Login"), parent),
      model_(item, alert)
{
    readAgain();
    connect(this, &QCheckBox::clicked, this, [this](bool isOn) {
        model_.setEnabled(isOn);
        readAgain();
    });
}

} // namespace vantrel
