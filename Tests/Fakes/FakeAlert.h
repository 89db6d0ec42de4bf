#pragma once

#include "Vantrel/FailureAlert.h"

#include <QStringList>

namespace vantrel::test {

/// Alerts that a test reads: "TITLE / MESSAGE".
class FakeAlert final : public FailureAlert {
public:
    void show(const QString &title, const QString &message) override
    {
        shown_.append(title + QStringLiteral(" / ") + message);
    }

    [[nodiscard]] const QStringList &shown() const { return shown_; }

private:
    QStringList shown_;
};

} // namespace vantrel::test
