import Foundation

/// The program's part of ActionsBridge.h, as Swift waits for answers.
@MainActor
enum Program {
    static func profiles(withIDs ids: [String]) async -> [ProfileEntity] {
        await profiles { context in
            withCStrings(ids) { vantrelProfilesWithIDs($0, ids.count, context, takeProfiles) }
        }
    }

    static func suggestedProfiles() async -> [ProfileEntity] {
        await profiles { vantrelSuggestedProfiles($0, takeProfiles) }
    }

    static func profiles(matching text: String) async -> [ProfileEntity] {
        await profiles { vantrelProfilesMatching(text, $0, takeProfiles) }
    }

    static func openProfile(_ id: String) async -> VantrelOutcome {
        await withCheckedContinuation { continuation in
            vantrelOpenProfile(id, Waiting(continuation).context(), takeOutcome)
        }
    }

    static func openLinks(_ links: [URL], inProfile id: String) async -> VantrelOutcome {
        await withCheckedContinuation { continuation in
            let context = Waiting(continuation).context()
            withCStrings(links.map(\.absoluteString)) { vantrelOpenLinks($0, links.count, id, context, takeOutcome) }
        }
    }

    private static func profiles(asked ask: (UnsafeMutableRawPointer) -> Void) async -> [ProfileEntity] {
        await withCheckedContinuation { continuation in ask(Waiting(continuation).context()) }
    }
}

/// A task that waits for the program. It goes through C as a pointer, which is taken back exactly once.
private final class Waiting<Value> {
    let task: CheckedContinuation<Value, Never>

    init(_ task: CheckedContinuation<Value, Never>) {
        self.task = task
    }

    func context() -> UnsafeMutableRawPointer {
        Unmanaged.passRetained(self).toOpaque()
    }

    static func taken(from context: UnsafeMutableRawPointer?) -> Waiting {
        Unmanaged<Waiting>.fromOpaque(context!).takeRetainedValue()
    }
}

private func takeProfiles(context: UnsafeMutableRawPointer?, profiles: UnsafePointer<VantrelProfile>?, count: Int) {
    let entities = UnsafeBufferPointer(start: profiles, count: count).map(ProfileEntity.init)
    Waiting<[ProfileEntity]>.taken(from: context).task.resume(returning: entities)
}

private func takeOutcome(context: UnsafeMutableRawPointer?, outcome: VantrelOutcome) {
    Waiting<VantrelOutcome>.taken(from: context).task.resume(returning: outcome)
}

/// The texts in C's form, for as long as `body` runs.
private func withCStrings(_ texts: [String], _ body: ([UnsafePointer<CChar>?]) -> Void) {
    let copies = texts.map { strdup($0) }
    defer { copies.forEach { free($0) } }
    body(copies.map { UnsafePointer($0) })
}
