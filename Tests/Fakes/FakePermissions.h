#pragma once

#include "Platform/AccessibilityTrust.h"
#include "Platform/AutomationPermission.h"

#include <QStringList>

namespace vantrel::test {

/// The user's trust as a test has it.
class FakeAccessibilityTrust final : public AccessibilityTrust {
public:
    void setTrusted(bool isTrusted) { isTrusted_ = isTrusted; }
    /// How often the user was asked.
    [[nodiscard]] int questions() const { return questions_; }

    [[nodiscard]] bool isTrusted() const override { return isTrusted_; }

    [[nodiscard]] bool isTrustedElseAsk() override
    {
        questions_ += isTrusted_ ? 0 : 1;
        return isTrusted_;
    }

private:
    bool isTrusted_ = true;
    int questions_ = 0;
};

/// The user's permission to control Safari, which runs, as a test has it. Nothing else does.
class FakeAutomationPermission final : public AutomationPermission {
public:
    /// The system's number for what doesn't run.
    static constexpr int notRunning = -600;

    void setAnswer(std::optional<int> answer) { answer_ = answer; }
    /// For which applications it was asked.
    [[nodiscard]] const QStringList &requests() const { return requests_; }

    [[nodiscard]] QCoro::Task<std::optional<int>> request(QString bundleID) override
    {
        requests_.append(bundleID);
        co_return bundleID == QStringLiteral("com.apple.Safari") ? answer_ : notRunning;
    }

private:
    std::optional<int> answer_ = granted;
    QStringList requests_;
};

} // namespace vantrel::test
