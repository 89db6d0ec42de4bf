#pragma once

#include "Platform/Linux/Environment.h"
#include "Platform/UserDefaults.h"

#include <QSettings>

#include <sys/types.h>

#include <optional>

namespace vantrel {

/// The user defaults in one file of Qt's INI format, which is made when something is first stored. A file that can't be
/// written leaves what was stored in memory, for as long as the program runs.
class LinuxUserDefaults final : public UserDefaults {
public:
    explicit LinuxUserDefaults(const QString &path);

    [[nodiscard]] static QString defaultPath(const Environment &environment);

    [[nodiscard]] QVariant value(const QString &key) const override;
    void setValue(const QString &key, const QVariant &value) override;
    void remove(const QString &key) override;

private:
    /// What tells one state of the file from another. All zeros when there is no file.
    struct FileState {
        ino_t number = 0;
        off_t size = 0;
        time_t seconds = 0;
        long nanoseconds = 0;

        [[nodiscard]] static FileState of(const QByteArray &file);
        friend bool operator==(const FileState &, const FileState &) = default;
    };

    void takeChangesOfOthers() const;

    QByteArray file_;
    /// Reading looks at the file anew, which QSettings takes for a change of itself.
    mutable QSettings settings_;
    /// As it was last read; none before.
    mutable std::optional<FileState> state_;
};

} // namespace vantrel
