#pragma once

#include "Platform/Linux/Instance/InstanceFolder.h"

#include <QDeadlineTimer>

namespace vantrel {

/// Decides which process is the app: the one that holds the lock. The system frees it when that process ends, however
/// it ends.
class InstanceLock {
public:
    /// Stands for none.
    InstanceLock() = default;

    /// Not held yet. `folder` has to outlive the lock; `path` is what the user knows it by.
    [[nodiscard]] static std::expected<InstanceLock, PlatformError> create(const InstanceFolder &folder,
                                                                           const QString &path);

    /// False when another process holds it.
    [[nodiscard]] bool tryLock() const;

    /// Waits until the holder may have begun to listen, or may have gone: until something happens in the folder, or a
    /// moment has passed, or time is up.
    void waitForHolder(const QDeadlineTimer &deadline);

private:
    InstanceLock(const InstanceFolder &folder, OwnedDescriptor file) : folder_(&folder), file_(std::move(file)) {}

    const InstanceFolder *folder_ = nullptr;
    OwnedDescriptor file_;
    /// Tells what happens in the folder.
    OwnedDescriptor watch_;
};

} // namespace vantrel
