#include "Vantrel/LinkQueue.h"

#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/ProfileList.h"

namespace vantrel {

LinkQueue::LinkQueue(const ProfileStore &store, const DiscoveryRuns &discovery, ProfileOpener &opener)
    : store_(store),
      discovery_(discovery),
      opener_(opener)
{
    connect(&discovery, &DiscoveryRuns::idle, this, &LinkQueue::openWaiting);
}

void LinkQueue::open(const QList<QUrl> &links)
{
    waiting_.append(links);
    openWaiting();
}

void LinkQueue::openWaiting()
{
    while (!waiting_.isEmpty() && !mustWait(waiting_.first()))
        opener_.openLink(waiting_.takeFirst());
}

bool LinkQueue::mustWait(const QUrl &link) const
{
    if (discovery_.isIdle())
        return false;
    const auto parsed = LaunchLink::parse(link);
    return parsed && !ProfileList::find(*parsed, store_.profiles(), store_.customNames());
}

} // namespace vantrel
