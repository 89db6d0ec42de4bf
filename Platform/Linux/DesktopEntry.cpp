#include "Platform/Linux/DesktopEntry.h"

#include "Platform/Linux/ExecLine.h"

#include <QFile>
#include <QFileInfo>

#include <glib.h>

#include <memory>

namespace vantrel {
namespace {

struct Deleter {
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
    void operator()(char *text) const { g_free(text); }
};

using KeyFile = std::unique_ptr<GKeyFile, Deleter>;
using Text = std::unique_ptr<char, Deleter>;

QString string(const KeyFile &file, const char *key)
{
    const Text text(g_key_file_get_string(file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr));
    return QString::fromUtf8(text.get());
}

/// In the language of the environment.
QString localizedString(const KeyFile &file, const char *key)
{
    const Text text(g_key_file_get_locale_string(file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr, nullptr));
    return QString::fromUtf8(text.get());
}

bool isProgramThere(const QString &program)
{
    return Text(g_find_program_in_path(QFile::encodeName(program).constData())) != nullptr;
}

bool canBeStarted(const DesktopEntryContent &content)
{
    if (!content.isApplication || (!content.tryExec.isEmpty() && !isProgramThere(content.tryExec)))
        return false;
    const QStringList words = execWords(content.entry.exec).value_or(QStringList());
    return !words.isEmpty() && isProgramThere(words.first());
}

DesktopEntry entryIn(const KeyFile &file, const QString &path)
{
    const QString name = localizedString(file, G_KEY_FILE_DESKTOP_KEY_NAME);
    return {
        .path = path,
        .name = name.isEmpty() ? QFileInfo(path).completeBaseName() : name,
        .exec = string(file, G_KEY_FILE_DESKTOP_KEY_EXEC),
        .icon = localizedString(file, G_KEY_FILE_DESKTOP_KEY_ICON),
        .workingDirectory = string(file, G_KEY_FILE_DESKTOP_KEY_PATH),
        .flatpakID = string(file, "X-Flatpak"),
        .snapName = string(file, "X-SnapInstanceName"),
    };
}

} // namespace

std::optional<DesktopEntryContent> DesktopEntryContent::read(const QString &path)
{
    const KeyFile file(g_key_file_new());
    // Opening anything but a plain file could block, as a pipe does.
    if (!QFileInfo(path).isFile() ||
        g_key_file_load_from_file(file.get(), QFile::encodeName(path).constData(), G_KEY_FILE_NONE, nullptr) == FALSE)
        return std::nullopt;
    const gboolean isHidden =
        g_key_file_get_boolean(file.get(), G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_HIDDEN, nullptr);
    const QString type = string(file, G_KEY_FILE_DESKTOP_KEY_TYPE);
    return DesktopEntryContent{
        .isHidden = isHidden != FALSE,
        .isApplication = type == QLatin1StringView(G_KEY_FILE_DESKTOP_TYPE_APPLICATION),
        .tryExec = string(file, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC),
        .entry = entryIn(file, path),
    };
}

DesktopEntryFile DesktopEntryContent::file() const
{
    if (isHidden)
        return {.isHidden = true, .entry = std::nullopt};
    return {.isHidden = false, .entry = canBeStarted(*this) ? std::optional(entry) : std::nullopt};
}

DesktopEntryFile DesktopEntryFile::read(const QString &path)
{
    const auto content = DesktopEntryContent::read(path);
    return content ? content->file() : DesktopEntryFile();
}

} // namespace vantrel
