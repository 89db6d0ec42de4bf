#pragma once

#include <QCoroTask>
#include <QString>

namespace vantrel {

/// Asking the user to let the program read a folder, on systems where such a choice is what grants it. Main thread
/// only.
class FolderAccess {
public:
    /// What the system's panel for choosing a folder shows.
    struct Panel {
        /// Where it opens.
        QString folder;
        QString message;
        QString confirmButton;
    };

    virtual ~FolderAccess() = default;

    /// Shows the panel in front of all else; true when the user confirmed.
    [[nodiscard]] virtual QCoro::Task<bool> ask(Panel panel) = 0;
};

} // namespace vantrel
