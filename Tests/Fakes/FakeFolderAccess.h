#pragma once

#include "Platform/FolderAccess.h"

#include <QStringList>

namespace vantrel::test {

/// A user who answers at once. What was asked is kept: "FOLDER | MESSAGE | BUTTON".
class FakeFolderAccess final : public FolderAccess {
public:
    void setAnswer(bool answer) { answer_ = answer; }
    [[nodiscard]] const QStringList &asked() const { return asked_; }

    [[nodiscard]] QCoro::Task<bool> ask(Panel panel) override
    {
        asked_.append(QStringList{panel.folder, panel.message, panel.confirmButton}.join(QStringLiteral(" | ")));
        co_return answer_;
    }

private:
    bool answer_ = false;
    QStringList asked_;
};

} // namespace vantrel::test
