#pragma once

#include <QString>
#include <QVariant>

namespace vantrel {

/// The user's small settings of this program, which other programs may read and write too. Main thread only.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;
    Q_DISABLE_COPY_MOVE(UserDefaults)

    /// A string or a truth value as it was stored; invalid when there is none.
    [[nodiscard]] virtual QVariant value(const QString &key) const = 0;

    /// Stores a string or a truth value. Writing never fails visibly.
    virtual void setValue(const QString &key, const QVariant &value) = 0;

    /// Nothing happens when there is none.
    virtual void remove(const QString &key) = 0;

protected:
    UserDefaults() = default;
};

} // namespace vantrel
