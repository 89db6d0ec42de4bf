#pragma once

#include "Platform/FolderAccess.h"
#include "Platform/MacOS/FilePanels.h"

namespace vantrel {

/// A folder that the user chooses in the system's panel may be read from then on.
class PanelFolderAccess final : public FolderAccess {
public:
    [[nodiscard]] QCoro::Task<bool> ask(Panel panel) override;

private:
    FilePanels panels_;
};

} // namespace vantrel
