#pragma once

#include "Platform/SearchIndex.h"

#include <cstddef>

struct VantrelProfile;

namespace vantrel {

/// The index behind the functions of ActionsBridge.h, which the system keeps of an app's entities.
class AppEntityIndex final : public SearchIndex {
public:
    /// With null for no failure.
    using End = void (*)(void *context, const char *failure);

    /// Those of the bridge.
    struct Functions {
        void (*removeAll)(void *context, End end);
        void (*add)(const VantrelProfile *profiles, std::size_t count, void *context, End end);
    };

    explicit AppEntityIndex(const Functions &functions) : functions_(functions) {}

    [[nodiscard]] Step removeAll() override;
    [[nodiscard]] Step add(QList<Entry> entries) override;

private:
    Functions functions_;
};

} // namespace vantrel
