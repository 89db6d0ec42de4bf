#pragma once

#include "Platform/PlatformError.h"

#include <QStringList>

#include <memory>

namespace vantrel {

/// The program that makes launchers, as the command line sees it.
class LauncherProgram {
public:
    virtual ~LauncherProgram() = default;

    /// Turns this process into that program; returns only when that fails. `arguments` are those of the command.
    [[nodiscard]] virtual PlatformError become(const QStringList &arguments) = 0;

    [[nodiscard]] static std::unique_ptr<LauncherProgram> create();
};

} // namespace vantrel
