#pragma once

namespace vantrel {

/// One visitor for `std::visit` out of a lambda for each alternative.
template <typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};

} // namespace vantrel
