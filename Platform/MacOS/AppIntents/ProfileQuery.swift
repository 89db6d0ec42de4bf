import AppIntents

/// Finds profiles by what the program answers.
struct ProfileQuery: EntityStringQuery, DynamicOptionsProvider {
    /// In the order of the identifiers; those without a profile are left out.
    @MainActor
    func entities(for identifiers: [String]) async throws -> [ProfileEntity] {
        await Program.profiles(withIDs: identifiers)
    }

    @MainActor
    func entities(matching string: String) async throws -> [ProfileEntity] {
        await Program.profiles(matching: string)
    }

    @MainActor
    func suggestedEntities() async throws -> [ProfileEntity] {
        await Program.suggestedProfiles()
    }

    /// What the actions' parameters can be.
    func results() async throws -> [ProfileEntity] {
        try await suggestedEntities()
    }
}
