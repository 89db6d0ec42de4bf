#pragma once

#include <QByteArray>

#include <sys/stat.h>

namespace vantrel {

/// What tells one state of a file from another, without reading it. All zeros when there is no file.
struct FileState {
    ino_t number = 0;
    off_t size = 0;
    time_t seconds = 0;
    long nanoseconds = 0;

    [[nodiscard]] static FileState of(const QByteArray &encodedPath)
    {
        struct stat found{};
        if (stat(encodedPath.constData(), &found) != 0)
            return {};
        return {found.st_ino, found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
    }

    friend bool operator==(const FileState &, const FileState &) = default;
};

} // namespace vantrel
