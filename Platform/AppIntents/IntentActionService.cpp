#include "Platform/AppIntents/IntentActionService.h"

#include "Platform/AppIntents/ActionCalls.h"

namespace vantrel {

IntentActionService::~IntentActionService()
{
    ActionCalls::ofProgram().end();
}

void IntentActionService::start(ActionAnswers &answers)
{
    ActionCalls::ofProgram().begin(answers);
}

} // namespace vantrel
