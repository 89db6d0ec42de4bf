#pragma once

#include "Vantrel/DiscoveryRuns.h"
#include "Vantrel/ProfileOpener.h"

#include <QUrl>

namespace vantrel {

/// Opens links of our own scheme in the order in which they come, each by itself. One that comes while browsers are
/// being read and names what isn't known yet waits until they are, and so do those behind it: a link may be what starts
/// the program for the first time. Main thread only.
class LinkQueue final : public QObject {
public:
    /// All must outlive it.
    LinkQueue(const ProfileStore &store, const DiscoveryRuns &discovery, ProfileOpener &opener);

    void open(const QList<QUrl> &links);

private:
    void openWaiting();
    [[nodiscard]] bool mustWait(const QUrl &link) const;

    const ProfileStore &store_;
    const DiscoveryRuns &discovery_;
    ProfileOpener &opener_;
    QList<QUrl> waiting_;
};

} // namespace vantrel
