#include "Platform/AppIntents/ActionCalls.h"

namespace vantrel {

ActionCalls &ActionCalls::ofProgram()
{
    static ActionCalls calls;
    return calls;
}

void ActionCalls::add(const Call &call)
{
    if (answers_ == nullptr)
        waiting_.append(call);
    else
        call(*answers_);
}

void ActionCalls::begin(ActionAnswers &answers)
{
    answers_ = &answers;
    // What a call leads to may be another one.
    for (const Call &call : std::exchange(waiting_, {}))
        call(answers);
}

void ActionCalls::end()
{
    answers_ = nullptr;
    waiting_.clear();
}

} // namespace vantrel
