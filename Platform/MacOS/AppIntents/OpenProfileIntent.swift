import AppIntents

/// The action that opens a profile.
struct OpenProfileIntent: OpenIntent {
    static let title: LocalizedStringResource = "Open Browser Profile"

    static var parameterSummary: some ParameterSummary {
        Summary("Open \(\.$target)")
    }

    @Parameter(title: "Profile", optionsProvider: ProfileQuery())
    var target: ProfileEntity

    @MainActor
    func perform() async throws -> some IntentResult {
        switch await Program.openProfile(target.id) {
        case vantrelPerformed: return .result()
        case vantrelNeedsProfile: throw $target.needsValueError()
        default: throw CancellationError()
        }
    }
}
