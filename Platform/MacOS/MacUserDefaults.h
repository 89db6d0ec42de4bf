#pragma once

#include "Platform/UserDefaults.h"

#include <memory>

namespace vantrel {

/// The user defaults of the app's bundle, with the keys and values as they are.
class MacUserDefaults final : public UserDefaults {
public:
    /// `suite` is the name of another domain, for tests; none for the bundle's own.
    explicit MacUserDefaults(const QString &suite = {});
    ~MacUserDefaults() override;

    [[nodiscard]] QVariant value(const QString &key) const override;
    void setValue(const QString &key, const QVariant &value) override;
    void remove(const QString &key) override;

private:
    struct Native;
    std::unique_ptr<Native> native_;
};

} // namespace vantrel
