#pragma once

#include "Platform/Linux/DesktopEntry.h"
#include "Platform/Linux/FileState.h"

#include <QHash>
#include <QMutex>

namespace vantrel {

/// Desktop entry files, each parsed once for as long as it stays as it is: most of their some hundred lines are names
/// in other languages. Any thread.
class DesktopEntries {
public:
    /// The same as `DesktopEntryFile::read`.
    [[nodiscard]] DesktopEntryFile read(const QString &path);

private:
    struct Known {
        FileState state;
        DesktopEntryContent content;
    };

    [[nodiscard]] std::optional<DesktopEntryContent> content(const QString &path);

    QMutex mutex_;
    /// By their paths.
    QHash<QString, Known> known_;
};

} // namespace vantrel
