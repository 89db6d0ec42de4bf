#pragma once

#include "Platform/Linux/OwnedDescriptor.h"
#include "Platform/PlatformError.h"

#include <QByteArray>

#include <expected>

namespace vantrel {

/// The folder in which the running app listens, known to belong to this user and held open: what is reached through it
/// stays in it, whatever is put in its place.
class InstanceFolder {
public:
    /// The names in the folder: where the app listens, and what it holds locked as long as it runs.
    static constexpr const char *socketName = "socket";
    static constexpr const char *lockName = "lock";

    /// Stands for none.
    InstanceFolder() = default;

    /// None when there is no such folder. Fails when it is another user's.
    [[nodiscard]] static std::expected<InstanceFolder, PlatformError> open(const QString &path);

    /// Makes the folder if need be, and closes it to other users. Fails when it is one of theirs.
    [[nodiscard]] static std::expected<InstanceFolder, PlatformError> make(const QString &path);

    [[nodiscard]] bool exists() const { return descriptor_.isOpen(); }
    [[nodiscard]] int descriptor() const { return descriptor_.number(); }

    /// The path of a name in the folder. It is short, as a socket's address has to be, and good in this process alone.
    [[nodiscard]] QByteArray path(const char *name) const;

    /// What the user is told when something in the folder at `path` can't be used, by the system's error number.
    [[nodiscard]] static PlatformError failure(const QString &path, int number);

private:
    explicit InstanceFolder(OwnedDescriptor descriptor) : descriptor_(std::move(descriptor)) {}

    OwnedDescriptor descriptor_;
};

} // namespace vantrel
