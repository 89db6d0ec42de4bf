#pragma once

#include "Platform/LogChannel.h"
#include "Platform/SearchIndex.h"
#include "Vantrel/Actions/ProfileTitles.h"
#include "Vantrel/Clock.h"
#include "Vantrel/Pictures/ProfileIconCache.h"

#include <chrono>

namespace vantrel {

/// Keeps the profiles in the system's search index. Everything is removed before the present ones are added, so that
/// nothing lingers there that was renamed, hidden or is gone. Main thread only; lives as long as the app.
class ProfileSearchIndex final : public QObject {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        ProfileTitles &titles;
        ProfileIconCache &icons;
        SearchIndex &index;
        Clock &clock;
        LogSink &log;
    };

    /// For how long things must be quiet before a refresh begins: a discovery changes the store several times.
    static constexpr std::chrono::milliseconds quietTime{500};

    /// Refreshes whenever the profiles change.
    explicit ProfileSearchIndex(const Environment &environment);

    /// Brings the index up to date, soon. A refresh that is under way goes no further than its present step.
    void refresh();

    /// Gives up what is asked for and not done yet. A step that is under way is finished.
    void cancel();

private:
    QCoro::Task<> run();
    QCoro::Task<> runOnce(int round);
    [[nodiscard]] QList<SearchIndex::Entry> entries();

    Environment environment_;
    LogChannel log_;
    /// Counts what was asked for.
    int wanted_ = 0;
    /// The one of them that needs nothing more.
    int settled_ = 0;
    bool isRunning_ = false;
};

} // namespace vantrel
