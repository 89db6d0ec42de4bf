#pragma once

#include "Platform/MacOS/FilePanels.h"
#include "Platform/SavePanel.h"

namespace vantrel {

/// The system's panel.
class NativeSavePanel final : public SavePanel {
public:
    [[nodiscard]] QCoro::Task<std::optional<QString>> ask(Panel panel) override;

private:
    FilePanels panels_;
};

} // namespace vantrel
