#pragma once

#include <QCoroTask>
#include <QString>

#include <memory>
#include <optional>

namespace vantrel {

/// The system's panels for files, one at a time: one that is open already is cancelled when the next is asked for, and
/// when this object ends. Main thread only.
class FilePanels {
public:
    struct Panel {
        /// Empty for the system's own.
        QString title = {};
        QString message = {};
        QString confirmButton = {};
        /// Where it opens.
        QString folder = {};
        /// The name that is proposed for a new application bundle; empty when a folder is chosen.
        QString fileName = {};
        /// Whether the user can make folders in it.
        bool canMakeFolders = true;
    };

    FilePanels();
    ~FilePanels();
    Q_DISABLE_COPY_MOVE(FilePanels)

    /// Shows it in front of all else. None when the user cancels.
    [[nodiscard]] QCoro::Task<std::optional<QString>> ask(Panel panel);

private:
    struct Native;

    std::shared_ptr<Native> native_;
};

} // namespace vantrel
