#pragma once

#include "Platform/ApplicationInstance.h"

#include <QObject>

#include <memory>

namespace vantrel {

/// What the system asks of the app by Apple events: to open links, also those that start it, and to show itself, as
/// when its icon is opened again. Main thread only.
class AppleEvents final : public QObject {
public:
    /// `handler` is called from the event loop.
    explicit AppleEvents(ApplicationInstance::Handler handler);
    ~AppleEvents() override;
    Q_DISABLE_COPY_MOVE(AppleEvents)

    /// Qt passes on what it hears as an event of the application's: single links, and files.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Native;

    ApplicationInstance::Handler handler_;
    std::unique_ptr<Native> native_;
};

} // namespace vantrel
