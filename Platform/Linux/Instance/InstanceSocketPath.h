#pragma once

#include <QProcessEnvironment>
#include <QString>

namespace vantrel {

/// Where the running app listens: in a folder of its own in $XDG_RUNTIME_DIR, or in the temporary folder when that
/// variable names no folder of this user's. (As root in a user's session it names the user's, where a folder of root's
/// would keep the user's own app from starting.)
[[nodiscard]] QString instanceSocketPath(const QProcessEnvironment &variables);

} // namespace vantrel
