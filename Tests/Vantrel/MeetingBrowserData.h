#pragma once

#include "Platform/BrowserData.h"
#include "Tests/Vantrel/MeetingPoint.h"

#include <atomic>

namespace vantrel::test {

/// Answers only when it is asked for several browsers at a time, or after a while.
class MeetingBrowserData final : public BrowserData {
public:
    explicit MeetingBrowserData(int expected) : point_(expected) {}

    [[nodiscard]] QList<BrowserDataFolder> dataFolders(const QString &) const override
    {
        if (!point_.arrive())
            haveMet_ = false;
        return {};
    }

    [[nodiscard]] bool haveMet() const { return haveMet_; }

private:
    mutable MeetingPoint point_;
    mutable std::atomic<bool> haveMet_ = true;
};

} // namespace vantrel::test
