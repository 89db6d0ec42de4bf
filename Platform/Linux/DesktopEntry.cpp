// Ahead of Qt's headers: GIO has a structure member called "signals".
#include "Platform/Linux/DesktopEntry.h"

#include <QFile>

#include <gio/gdesktopappinfo.h>

#include <memory>

namespace vantrel {
namespace {

struct Deleter {
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
    void operator()(GDesktopAppInfo *info) const { g_object_unref(info); }
    void operator()(char *text) const { g_free(text); }
};

using KeyFile = std::unique_ptr<GKeyFile, Deleter>;
using AppInfo = std::unique_ptr<GDesktopAppInfo, Deleter>;
using Text = std::unique_ptr<char, Deleter>;

QString string(GDesktopAppInfo *info, const char *key)
{
    const Text text(g_desktop_app_info_get_string(info, key));
    return QString::fromUtf8(text.get());
}

} // namespace

DesktopEntryFile DesktopEntryFile::read(const QString &path)
{
    const KeyFile file(g_key_file_new());
    if (!g_key_file_load_from_file(file.get(), QFile::encodeName(path).constData(), G_KEY_FILE_NONE, nullptr))
        return {};
    if (g_key_file_get_boolean(file.get(), G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_HIDDEN, nullptr))
        return {.isHidden = true, .entry = std::nullopt};
    // Null also when the program, or what TryExec names, isn't on the machine.
    const AppInfo info(g_desktop_app_info_new_from_keyfile(file.get()));
    const char *exec = info ? g_app_info_get_commandline(G_APP_INFO(info.get())) : nullptr;
    if (!exec)
        return {};
    return {.isHidden = false,
            .entry = DesktopEntry{
                .path = path,
                .name = QString::fromUtf8(g_app_info_get_name(G_APP_INFO(info.get()))),
                .exec = QString::fromUtf8(exec),
                .icon = string(info.get(), G_KEY_FILE_DESKTOP_KEY_ICON),
                .workingDirectory = string(info.get(), G_KEY_FILE_DESKTOP_KEY_PATH),
                .flatpakID = string(info.get(), "X-Flatpak"),
            }};
}

} // namespace vantrel
