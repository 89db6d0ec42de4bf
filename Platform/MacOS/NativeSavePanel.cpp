#include "Platform/MacOS/NativeSavePanel.h"

namespace vantrel {

QCoro::Task<std::optional<QString>> NativeSavePanel::ask(Panel panel)
{
    return panels_.ask({.title = panel.title,
                        .message = panel.message,
                        .confirmButton = panel.confirmButton,
                        .folder = panel.folder,
                        .fileName = panel.fileName});
}

} // namespace vantrel
