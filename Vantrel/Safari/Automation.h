#pragma once

#include "Platform/SafariPorts.h"
#include "Vantrel/Safari/ProfileFinder.h"
#include "Vantrel/Safari/Windows.h"

namespace vantrel::Safari {

/// All that drives Safari, each part given what it needs. Main thread only; lives as long as the app, for its tasks
/// refer to it.
class Automation {
public:
    /// What it works with; all must outlive it.
    struct Environment {
        SafariPorts &ports;
        const RunningApplications &runningApplications;
        Languages &languages;
        Clock &clock;
        LogSink &log;
    };

    explicit Automation(const Environment &environment);
    ~Automation() = default;
    Q_DISABLE_COPY_MOVE(Automation)

    [[nodiscard]] SafariSearch &search() { return finder_; }
    [[nodiscard]] Windows &windows() { return windows_; }

private:
    Scripting scripting_;
    MenuReader menus_;
    Connector connector_;
    WindowOpener opener_;
    ProfileFinder finder_;
    Windows windows_;
};

} // namespace vantrel::Safari
