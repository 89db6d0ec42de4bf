#include "Platform/Linux/DesktopEntries.h"

#include <QFile>

namespace vantrel {

DesktopEntryFile DesktopEntries::read(const QString &path)
{
    const auto found = content(path);
    return found ? found->file() : DesktopEntryFile();
}

std::optional<DesktopEntryContent> DesktopEntries::content(const QString &path)
{
    // Before reading: what is written meanwhile counts as another state.
    const FileState state = FileState::of(QFile::encodeName(path));
    {
        const QMutexLocker locker(&mutex_);
        const auto known = known_.constFind(path);
        if (known != known_.constEnd() && known->state == state)
            return known->content;
    }
    auto read = DesktopEntryContent::read(path);
    const QMutexLocker locker(&mutex_);
    // What can't be read may become readable without looking any different.
    if (read)
        known_.insert(path, {state, *read});
    else
        known_.remove(path);
    return read;
}

} // namespace vantrel
