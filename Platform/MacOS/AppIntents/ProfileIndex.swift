import AppIntents
import CoreSpotlight
import Foundation

/// With null for no failure.
public typealias IndexEnd = @convention(c) (UnsafeMutableRawPointer?, UnsafePointer<CChar>?) -> Void

/// For C++, which see ActionsBridge.h.
@_cdecl("vantrelRemoveIndexedProfiles")
public func removeIndexedProfiles(context: UnsafeMutableRawPointer?, end: @escaping IndexEnd) {
    guard #available(macOS 15.0, *) else { return refuse(context, end) }
    run(context, end) {
        try await CSSearchableIndex.default().deleteAppEntities(ofType: ProfileEntity.self)
    }
}

/// For C++, which see ActionsBridge.h.
@_cdecl("vantrelIndexProfiles")
public func indexProfiles(profiles: UnsafePointer<VantrelProfile>?, count: Int, context: UnsafeMutableRawPointer?,
                          end: @escaping IndexEnd) {
    guard #available(macOS 15.0, *) else { return refuse(context, end) }
    // The pointer is good for this call only.
    let entities = UnsafeBufferPointer(start: profiles, count: count).map(ProfileEntity.init)
    run(context, end) {
        try await CSSearchableIndex.default().indexAppEntities(entities, priority: 0)
    }
}

private func refuse(_ context: UnsafeMutableRawPointer?, _ end: IndexEnd) {
    end(context, "The index of app entities needs macOS 15.")
}

private func run(_ context: UnsafeMutableRawPointer?, _ end: @escaping IndexEnd,
                 _ step: @escaping @Sendable () async throws -> Void) {
    Task { @MainActor in
        do {
            try await step()
            end(context, nil)
        } catch {
            end(context, error.localizedDescription)
        }
    }
}
