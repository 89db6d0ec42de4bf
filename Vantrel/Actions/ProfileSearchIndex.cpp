#include "Vantrel/Actions/ProfileSearchIndex.h"

#include "Vantrel/Actions/SystemProfiles.h"

using namespace Qt::StringLiterals;

namespace vantrel {

ProfileSearchIndex::ProfileSearchIndex(const Environment &environment)
    : environment_(environment),
      log_(environment.log, u"Search"_s)
{
    connect(&environment.titles, &ProfileTitles::changed, this, &ProfileSearchIndex::refresh);
}

void ProfileSearchIndex::refresh()
{
    ++wanted_;
    // One at a time: the steps of two would mix in the index.
    if (!isRunning_)
        run();
}

void ProfileSearchIndex::cancel()
{
    settled_ = ++wanted_;
}

QCoro::Task<> ProfileSearchIndex::run()
{
    isRunning_ = true;
    while (settled_ != wanted_) {
        const int round = wanted_;
        co_await environment_.clock.sleep(quietTime);
        if (round == wanted_)
            co_await runOnce(round);
    }
    isRunning_ = false;
}

QCoro::Task<> ProfileSearchIndex::runOnce(int round)
{
    auto done = co_await environment_.index.removeAll();
    if (round != wanted_)
        co_return;
    if (done)
        done = co_await environment_.index.add(entries());
    if (!done)
        log_.error("Search index not refreshed: %{public}s"_L1, QList<LogValue>(1, done.error().message));
    // A failure isn't tried again before something changes.
    if (round == wanted_)
        settled_ = round;
}

QList<SearchIndex::Entry> ProfileSearchIndex::entries()
{
    QList<SearchIndex::Entry> entries;
    for (const ProfileTitles::Row &row : environment_.titles.rows()) {
        if (row.isInstalled && !row.isHidden)
            entries.append(systemProfile(row.entity, environment_.icons));
    }
    return entries;
}

} // namespace vantrel
