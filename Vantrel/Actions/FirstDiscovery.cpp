#include "Vantrel/Actions/FirstDiscovery.h"

#include <QCoroSignal>

namespace vantrel {

QCoro::Task<> filledStore(const ProfileStore &store, DiscoveryRuns &discovery)
{
    discovery.start();
    while (store.profiles().isEmpty() && !discovery.isIdle())
        co_await qCoro(&discovery, &DiscoveryRuns::idle);
}

QCoro::Task<> searchedFor(QString profileID, ProfileTitles &titles, DiscoveryRuns &discovery)
{
    discovery.start();
    while (titles.find(profileID) == nullptr && !discovery.isIdle())
        co_await qCoro(&discovery, &DiscoveryRuns::idle);
}

} // namespace vantrel
