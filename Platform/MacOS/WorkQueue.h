#pragma once

#include "Platform/MacOS/Answer.h"

#include <functional>
#include <memory>

namespace vantrel {

/// A thread of the system's on which work is done in its order, for what may take long. What is under way goes on when
/// this object ends, and when the program does nobody waits for it.
class WorkQueue {
public:
    WorkQueue();
    ~WorkQueue();
    Q_DISABLE_COPY_MOVE(WorkQueue)

    /// What `work` answers on that thread. It must own what it uses, and is let go of there too.
    template <typename T>
    [[nodiscard]] Answer<T> run(std::function<T()> work)
    {
        Answer<T> answer;
        add([answer, work = std::move(work)] { answer.give(work()); });
        return answer;
    }

private:
    struct Native;

    void add(std::function<void()> work);

    std::unique_ptr<Native> native_;
};

} // namespace vantrel
