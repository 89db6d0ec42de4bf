#pragma once

#include <QCoroTask>
#include <QString>

#include <optional>

namespace vantrel {

/// Asks the user where something is to be saved. A question that is still open is cancelled when the next is asked, and
/// when the object ends. Main thread only.
class SavePanel {
public:
    struct Panel {
        QString title;
        QString message;
        QString confirmButton;
        /// Where it opens.
        QString folder;
        /// The name that is proposed for an application bundle; empty when the user chooses a folder.
        QString fileName;

        friend bool operator==(const Panel &, const Panel &) = default;
    };

    virtual ~SavePanel() = default;

    /// Shows the panel in front of all else. The path of the file or folder; none when the user cancels.
    [[nodiscard]] virtual QCoro::Task<std::optional<QString>> ask(Panel panel) = 0;
};

} // namespace vantrel
