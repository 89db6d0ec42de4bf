#pragma once

#include "Platform/PlatformError.h"

#include <QByteArray>

#include <cstdint>
#include <expected>

namespace vantrel {

/// The user's files, one step a call. Each fails with a text that names the path and the system's reason. Any thread.
class FileSystem {
public:
    using Result = std::expected<void, PlatformError>;

    enum class Access : std::uint8_t { readable, executable };

    virtual ~FileSystem() = default;

    /// With all folders above it; one that is there is left as it is.
    [[nodiscard]] virtual Result makeFolder(const QString &path) = 0;
    /// The copy is the user's own and can be executed.
    [[nodiscard]] virtual Result copyProgram(const QString &source, const QString &copy) = 0;
    /// A reader or a crash never meets half of the file.
    [[nodiscard]] virtual Result write(const QString &path, const QByteArray &content, Access access) = 0;
    /// An extended attribute. Nothing happens when there is none; a symbolic link isn't followed.
    [[nodiscard]] virtual Result removeAttribute(const QString &path, const QString &name) = 0;
    /// Moves an item, a file or a folder with all it holds, to another place. What was there is replaced at once, or
    /// stays as it was when that fails.
    [[nodiscard]] virtual Result replaceItem(const QString &place, const QString &item) = 0;
    /// With all it holds; nothing happens when there is none.
    [[nodiscard]] virtual Result remove(const QString &path) = 0;
};

} // namespace vantrel
