import AppIntents
import Foundation

/// The action that opens web links in a profile; without links it opens the profile.
struct OpenLinksInProfileIntent: AppIntent {
    static let title: LocalizedStringResource = "Open Links in Browser Profile"

    static var parameterSummary: some ParameterSummary {
        Summary("Open \(\.$links) in \(\.$profile)")
    }

    @Parameter(title: "Links")
    var links: [URL]

    @Parameter(title: "Profile", optionsProvider: ProfileQuery())
    var profile: ProfileEntity

    @MainActor
    func perform() async throws -> some IntentResult {
        switch await Program.openLinks(links, inProfile: profile.id) {
        case vantrelPerformed: return .result()
        case vantrelNeedsProfile: throw $profile.needsValueError()
        default: throw CancellationError()
        }
    }
}
