#pragma once

#include <QString>

namespace vantrel {

/// How things are said on this system.
struct SystemConventions {
    /// The command that opens a link, for scripts.
    QString linkCommand;
    /// People read shortcuts as signs, "⌃⌥P", not as "Ctrl+Alt+P".
    bool showsKeySigns = false;
};

} // namespace vantrel
