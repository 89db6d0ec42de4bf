#pragma once

#include "Platform/SavePanel.h"

#include <QList>

namespace vantrel::test {

/// A user who answers at once. What was asked is kept.
class FakeSavePanel final : public SavePanel {
public:
    /// None cancels.
    void answer(const std::optional<QString> &path) { answer_ = path; }

    [[nodiscard]] const QList<Panel> &asked() const { return asked_; }

    [[nodiscard]] QCoro::Task<std::optional<QString>> ask(Panel panel) override
    {
        asked_.append(panel);
        // A copy: QCoro would take the member itself.
        co_return std::optional(answer_);
    }

private:
    QList<Panel> asked_;
    std::optional<QString> answer_;
};

} // namespace vantrel::test
