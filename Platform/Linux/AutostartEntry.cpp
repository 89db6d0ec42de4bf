#include "Platform/Linux/AutostartEntry.h"

#include "Platform/Linux/EntryText.h"
#include "Platform/Linux/Environment.h"
#include "Platform/LocalFileSystem.h"
#include "VantrelKit/Paths.h"

#include <QFile>
#include <QFileInfo>

#include <glib.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Deleter {
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
};

enum class State : std::uint8_t { none, on, off };

/// Hidden is the format's own way to switch an entry off, the other key that of some desktops' settings.
State stateOf(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return State::none;
    const std::unique_ptr<GKeyFile, Deleter> file(g_key_file_new());
    if (g_key_file_load_from_file(file.get(), QFile::encodeName(path).constData(), G_KEY_FILE_NONE, nullptr) == FALSE)
        return State::off;
    const char *group = G_KEY_FILE_DESKTOP_GROUP;
    const char *gnomesKey = "X-GNOME-Autostart-enabled";
    const bool isSwitchedOff = g_key_file_has_key(file.get(), group, gnomesKey, nullptr) != FALSE &&
                               g_key_file_get_boolean(file.get(), group, gnomesKey, nullptr) == FALSE;
    const bool isHidden = g_key_file_get_boolean(file.get(), group, G_KEY_FILE_DESKTOP_KEY_HIDDEN, nullptr) != FALSE;
    return isHidden || isSwitchedOff ? State::off : State::on;
}

QByteArray entryText(const QString &program)
{
    return QString(u"[Desktop Entry]\n"_s + keyFileLine("Type"_L1, u"Application"_s) +
                   keyFileLine("Name"_L1, u"Vantrel"_s) + keyFileLine("Icon"_L1, u"app.kestrune.Vantrel"_s) +
                   keyFileLine("TryExec"_L1, program) + keyFileLine("Exec"_L1, execLine({program})) +
                   keyFileLine("Terminal"_L1, u"false"_s) +
                   // The panel takes symbols only once it is there.
                   keyFileLine("X-KDE-autostart-after"_L1, u"panel"_s) +
                   keyFileLine("X-GNOME-Autostart-enabled"_L1, u"true"_s))
        .toUtf8();
}

} // namespace

AutostartEntry::Places AutostartEntry::Places::from(const QProcessEnvironment &variables)
{
    const QString file = u"autostart/app.kestrune.Vantrel.desktop"_s;
    Places places{.own = joinedPath(Environment::from(variables).configHome, file), .everybodys = {}};
    const QString folders = variables.value(u"XDG_CONFIG_DIRS"_s);
    for (const QString &folder : (folders.isEmpty() ? u"/etc/xdg"_s : folders).split(u':')) {
        if (folder.startsWith(u'/'))
            places.everybodys.append(joinedPath(folder, file));
    }
    return places;
}

bool AutostartEntry::isEnabled() const
{
    const State own = stateOf(places_.own);
    return own == State::none ? isEnabledForEverybody() : own == State::on;
}

bool AutostartEntry::isEnabledForEverybody() const
{
    for (const QString &path : places_.everybodys) {
        if (const State state = stateOf(path); state != State::none)
            return state == State::on;
    }
    return false;
}

std::expected<void, PlatformError> AutostartEntry::setEnabled(bool isEnabled)
{
    LocalFileSystem files;
    if (!isEnabled && !isEnabledForEverybody())
        return files.remove(places_.own);
    if (auto made = files.makeFolder(QFileInfo(places_.own).path()); !made)
        return made;
    QByteArray text = entryText(program_);
    if (!isEnabled)
        text += keyFileLine("Hidden"_L1, u"true"_s).toUtf8();
    return files.write(places_.own, text, FileSystem::Access::readable);
}

} // namespace vantrel
