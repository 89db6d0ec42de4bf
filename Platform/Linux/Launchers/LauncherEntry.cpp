#include "Platform/Linux/Launchers/LauncherEntry.h"

#include "Platform/Linux/EntryText.h"

using namespace Qt::StringLiterals;

namespace vantrel {

QByteArray LauncherEntry::text() const
{
    // No type of http is claimed: a desktop without a default browser would take the launcher for one.
    QString text = u"[Desktop Entry]\n"_s + keyFileLine("Type"_L1, u"Application"_s) + keyFileLine("Name"_L1, name) +
                   keyFileLine("Comment"_L1, comment) + keyFileLine("Icon"_L1, icon) +
                   keyFileLine("TryExec"_L1, command.value(0)) + keyFileLine("Exec"_L1, execLine(command) + u" %U"_s) +
                   keyFileLine("Terminal"_L1, u"false"_s) + keyFileLine("StartupNotify"_L1, u"true"_s) +
                   keyFileLine("Categories"_L1, u"Network;"_s) + keyFileLine("X-Vantrel-Profile"_L1, profileID);
    if (privateWindow) {
        text += keyFileLine("Actions"_L1, u"private;"_s) + u"\n[Desktop Action private]\n"_s +
                keyFileLine("Name"_L1, privateWindow->name) + keyFileLine("Exec"_L1, execLine(privateWindow->command));
    }
    return text.toUtf8();
}

} // namespace vantrel
