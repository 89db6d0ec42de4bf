import AppIntents

/// What can be said or typed without the user having set anything up.
struct VantrelShortcuts: AppShortcutsProvider {
    static var appShortcuts: [AppShortcut] {
        AppShortcut(
            intent: OpenProfileIntent(),
            phrases: [
                "Open \(\.$target) with \(.applicationName)",
                "Open a profile with \(.applicationName)",
            ],
            shortTitle: "Open Profile",
            systemImageName: "paperplane.fill"
        )
    }
}

/// For C++, which see ActionsBridge.h.
@_cdecl("vantrelUpdateShortcutParameters")
public func updateShortcutParameters() {
    VantrelShortcuts.updateAppShortcutParameters()
}
