#pragma once

#include "Platform/ActionAnswers.h"

#include <functional>

namespace vantrel {

/// What the system asks for, which may come before there is anybody to answer. Main thread only.
class ActionCalls {
public:
    using Call = std::function<void(ActionAnswers &answers)>;

    /// Those that the C functions take. They are handed nothing by which they could find others: the one place where
    /// the program can't pass on what it needs.
    [[nodiscard]] static ActionCalls &ofProgram();

    /// Makes the call now, or when there is somebody to answer.
    void add(const Call &call);

    /// Makes the calls that have waited, and the later ones, until the end; `answers` must outlive that.
    void begin(ActionAnswers &answers);

    /// Drops the calls that wait. Those that come wait again.
    void end();

private:
    /// Null while there is nobody.
    ActionAnswers *answers_ = nullptr;
    QList<Call> waiting_;
};

} // namespace vantrel
