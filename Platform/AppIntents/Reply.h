#pragma once

#include <QtGlobal>

#include <tuple>
#include <utility>

namespace vantrel {

/// The one answer that a caller in C is owed. It is `otherwise` when this goes without having given any.
template <typename... Values>
class Reply {
public:
    using Function = void (*)(void *context, Values... values);

    Reply(void *context, Function function, Values... otherwise)
        : context_(context),
          function_(function),
          otherwise_(otherwise...)
    {
    }

    ~Reply()
    {
        if (function_ != nullptr)
            std::apply([this](Values... values) { give(values...); }, otherwise_);
    }

    Q_DISABLE_COPY_MOVE(Reply)

    /// Once.
    void give(Values... values) { std::exchange(function_, nullptr)(context_, values...); }

private:
    void *context_;
    Function function_;
    std::tuple<Values...> otherwise_;
};

} // namespace vantrel
