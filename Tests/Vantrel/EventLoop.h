#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

#include <functional>

namespace vantrel::test {

/// The program that tests of events run in.
class EventProgram {
public:
    EventProgram() = default;
    /// Frees what was left to the event loop to free.
    ~EventProgram() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    Q_DISABLE_COPY_MOVE(EventProgram)

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
};

/// Lets events come until a condition holds; false when it doesn't within half a minute.
inline bool waitUntil(const std::function<bool()> &condition)
{
    QEventLoop loop;
    const QDeadlineTimer deadline(30'000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        loop.processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}

/// Lets everything happen that is due.
inline void settle()
{
    QEventLoop loop;
    while (loop.processEvents()) {
    }
}

} // namespace vantrel::test
