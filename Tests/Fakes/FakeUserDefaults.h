#pragma once

#include "Platform/UserDefaults.h"

#include <QHash>

namespace vantrel::test {

/// User defaults that last as long as a test.
class FakeUserDefaults final : public UserDefaults {
public:
    [[nodiscard]] QVariant value(const QString &key) const override { return values_.value(key); }

    void setValue(const QString &key, const QVariant &value) override
    {
        ++writes_;
        values_.insert(key, value);
    }

    void remove(const QString &key) override
    {
        ++writes_;
        values_.remove(key);
    }

    [[nodiscard]] const QHash<QString, QVariant> &values() const { return values_; }
    /// How often something was stored or removed.
    [[nodiscard]] int writes() const { return writes_; }

private:
    QHash<QString, QVariant> values_;
    int writes_ = 0;
};

} // namespace vantrel::test
