#pragma once

#include <QString>

#include <optional>

namespace vantrel {

/// What Vantrel needs of a desktop entry file (freedesktop.org Desktop Entry Specification).
struct DesktopEntry {
    /// The file.
    QString path;
    /// In the user's language.
    QString name;
    /// As written, with quotes and field codes.
    QString exec;
    QString icon;
    /// Where the program is to be started; empty for the home folder.
    QString workingDirectory;
    /// The application's ID when Flatpak exported the entry, else empty.
    QString flatpakID = {};
    /// The snap's name when snapd made the entry, else empty.
    QString snapName = {};

    friend bool operator==(const DesktopEntry &, const DesktopEntry &) = default;
};

struct DesktopEntryFile;

/// What a desktop entry file says, whether or not its program is there.
struct DesktopEntryContent {
    bool isHidden = false;
    bool isApplication = false;
    /// The program without which the entry doesn't count; empty for none.
    QString tryExec;
    DesktopEntry entry;

    /// None when the file can't be read, or isn't one. Any thread.
    [[nodiscard]] static std::optional<DesktopEntryContent> read(const QString &path);

    /// What that is worth now.
    [[nodiscard]] DesktopEntryFile file() const;
};

/// What reading a desktop entry file gives.
struct DesktopEntryFile {
    /// The entry says that it is to be taken for deleted, also where a folder of less weight has one of the same name.
    bool isHidden = false;
    /// None when the file is no application's entry, or its program isn't there.
    std::optional<DesktopEntry> entry;

    /// Any thread.
    [[nodiscard]] static DesktopEntryFile read(const QString &path);
};

} // namespace vantrel
