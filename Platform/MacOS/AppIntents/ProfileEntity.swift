import AppIntents
import Foundation

/// A profile as Shortcuts, Siri and Spotlight know it.
struct ProfileEntity: AppEntity {
    static let typeDisplayRepresentation = TypeDisplayRepresentation(name: "Profile")
    static let defaultQuery = ProfileQuery()

    let id: String
    /// The name that the user sees.
    let title: String
    let browser: String
    /// The round picture, a PNG file.
    let avatar: Data?
    /// Browser and name, in the user's language.
    private let fullTitle: String

    /// Copies all.
    init(_ profile: VantrelProfile) {
        id = String(cString: profile.id)
        title = String(cString: profile.name)
        browser = String(cString: profile.browser)
        fullTitle = String(cString: profile.title)
        if let picture = profile.picture {
            avatar = Data(bytes: picture, count: profile.pictureSize)
        } else {
            avatar = nil
        }
    }

    var displayRepresentation: DisplayRepresentation {
        if let avatar {
            return DisplayRepresentation(title: "\(fullTitle)", image: DisplayRepresentation.Image(data: avatar))
        }
        return DisplayRepresentation(title: "\(fullTitle)")
    }
}

/// What Spotlight shows of it is its display representation.
@available(macOS 15.0, *)
extension ProfileEntity: IndexedEntity {}
