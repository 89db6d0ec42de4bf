#include "Platform/MacOS/PanelFolderAccess.h"

namespace vantrel {

QCoro::Task<bool> PanelFolderAccess::ask(Panel panel)
{
    const FilePanels::Panel shown{.message = panel.message,
                                  .confirmButton = panel.confirmButton,
                                  .folder = panel.folder,
                                  .canMakeFolders = false};
    const auto chosen = co_await panels_.ask(shown);
    co_return chosen.has_value();
}

} // namespace vantrel
