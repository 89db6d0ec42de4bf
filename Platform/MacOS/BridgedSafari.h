#pragma once

#include "Platform/MacOS/WorkQueue.h"
#include "Platform/SafariBridge.h"

namespace vantrel {

/// Safari by the system's scripting bridge, whose objects are made and used on one queue alone: each question to Safari
/// waits for the answer.
class BridgedSafari final : public SafariApplication {
public:
    BridgedSafari(QString bundleID, SafariBridge::Settings settings);
    ~BridgedSafari() override;
    Q_DISABLE_COPY_MOVE(BridgedSafari)

    [[nodiscard]] QCoro::Task<> activate() override;
    [[nodiscard]] bool isRunning() const override;
    [[nodiscard]] QCoro::Task<std::optional<QList<qint64>>> windowIDs() override;
    [[nodiscard]] QCoro::Task<std::optional<QStringList>> tabURLs(qint64 windowID) override;
    [[nodiscard]] QCoro::Task<std::optional<qsizetype>> addTab(qint64 windowID) override;
    [[nodiscard]] QCoro::Task<> setURL(qint64 windowID, qsizetype tab, QString url) override;
    [[nodiscard]] QCoro::Task<> setCurrentTab(qint64 windowID, qsizetype tab) override;

private:
    struct Native;

    QString bundleID_;
    /// Shared with what is still in the queue.
    std::shared_ptr<Native> native_;
    WorkQueue queue_;
};

} // namespace vantrel
