#pragma once

#include "Platform/SavePanel.h"

#include <QPointer>

class QFileDialog;

namespace vantrel {

/// The toolkit's file panel. One that is open already is closed as cancelled when the next is asked for.
class FileSavePanel final : public SavePanel {
public:
    FileSavePanel() = default;
    ~FileSavePanel() override;
    Q_DISABLE_COPY_MOVE(FileSavePanel)

    [[nodiscard]] QCoro::Task<std::optional<QString>> ask(Panel panel) override;

private:
    QPointer<QFileDialog> open_;
};

} // namespace vantrel
