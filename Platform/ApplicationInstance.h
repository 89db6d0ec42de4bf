#pragma once

#include "Platform/InstanceRequest.h"
#include "Platform/PlatformError.h"

#include <expected>
#include <functional>

namespace vantrel {

/// The one instance of the app in the user's session, and its ear for requests. Main thread only.
class ApplicationInstance {
public:
    using Handler = std::function<void(const InstanceRequest &request)>;

    /// What `start` made of this process.
    enum class Role : std::uint8_t {
        /// It is the instance, and gets all requests from now on.
        only,
        /// Another process is; it has taken on `first` and this one is to end.
        second,
    };

    virtual ~ApplicationInstance() = default;

    /// Becomes the instance, or hands `first` to the one there is. Requests are passed to `handler` from the event
    /// loop, in the order in which they come; `first` is not among them. Fails when the other instance doesn't answer.
    /// Call once.
    [[nodiscard]] virtual std::expected<Role, PlatformError> start(const InstanceRequest &first, Handler handler) = 0;
};

} // namespace vantrel
