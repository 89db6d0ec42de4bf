#pragma once

#include "Platform/Linux/OwnedDescriptor.h"

#include <QString>

#include <sys/types.h>

#include <optional>

namespace vantrel {

/// A process that need not be a child of ours. It stands for that very process: its number may be given to another one
/// once it has ended, the handle is not.
class ProcessHandle final {
public:
    /// None when there is no such process.
    [[nodiscard]] static std::optional<ProcessHandle> open(pid_t process);

    [[nodiscard]] pid_t process() const { return process_; }
    /// Becomes readable when the process ends, for whatever reason.
    [[nodiscard]] int descriptor() const { return descriptor_.number(); }
    [[nodiscard]] bool isAlive() const;

    /// Whether it has a file below the folder open. False for processes of other users.
    [[nodiscard]] bool hasOpenFileBelow(const QString &folder) const;

private:
    ProcessHandle(pid_t process, OwnedDescriptor descriptor) : process_(process), descriptor_(std::move(descriptor)) {}

    pid_t process_;
    OwnedDescriptor descriptor_;
};

} // namespace vantrel
