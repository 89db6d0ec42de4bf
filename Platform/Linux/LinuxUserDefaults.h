#pragma once

#include "Platform/Linux/Environment.h"
#include "Platform/Linux/FileState.h"
#include "Platform/UserDefaults.h"

#include <QSettings>

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
    void takeChangesOfOthers() const;

    QByteArray file_;
    /// Reading looks at the file anew, which QSettings takes for a change of itself.
    mutable QSettings settings_;
    /// As it was last read; none before.
    mutable std::optional<FileState> state_;
};

} // namespace vantrel
