#include "Vantrel/Interface/Settings/AutomaticUpdatesToggle.h"

namespace vantrel {

AutomaticUpdatesToggle::AutomaticUpdatesToggle(Updater &updater, QWidget *parent)
    //: Switch in the settings.
    : QCheckBox(tr("Check for Updates Automatically"), parent),
      updater_(updater)
{
    readAgain();
    connect(this, &QCheckBox::clicked, this, [this](bool isOn) {
        updater_.setAutomaticallyChecksForUpdates(isOn);
        readAgain();
    });
}

} // namespace vantrel
