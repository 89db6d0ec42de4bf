#pragma once

#include "Platform/ActionService.h"

#include <QtGlobal>

namespace vantrel {

/// Answers the functions of ActionsBridge.h, which the AppIntents framework leads to. One at a time.
class IntentActionService final : public ActionService {
public:
    /// `updateParameters` tells the framework that there are other profiles now.
    explicit IntentActionService(void (*updateParameters)()) : updateParameters_(updateParameters) {}
    /// Whoever still waits for a start is told that there will be none.
    ~IntentActionService() override;
    Q_DISABLE_COPY_MOVE(IntentActionService)

    void start(ActionAnswers &answers) override;
    void announceChange() override { updateParameters_(); }

private:
    void (*updateParameters_)();
};

} // namespace vantrel
