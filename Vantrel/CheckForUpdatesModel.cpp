#include "Vantrel/CheckForUpdatesModel.h"

#include <QPointer>

namespace vantrel {

CheckForUpdatesModel::CheckForUpdatesModel(Updater &updater) : updater_(updater)
{
    updater.observeCanCheckForUpdates([model = QPointer(this)](bool canCheck) {
        if (!model || model->canCheckForUpdates_ == canCheck)
            return;
        model->canCheckForUpdates_ = canCheck;
        Q_EMIT model->canCheckForUpdatesChanged(canCheck);
    });
}

void CheckForUpdatesModel::checkForUpdates()
{
    if (canCheckForUpdates_)
        updater_.checkForUpdates();
}

} // namespace vantrel
