#pragma once

#include "Platform/ActionAnswers.h"

#include <coroutine>
#include <utility>

namespace vantrel::test {

/// Answers that a test sets. What was asked is kept, each as a text: "profiles a|b", "suggested", "matching TEXT",
/// "open ID", "open ID with a|b".
class FakeActionAnswers final : public ActionAnswers {
public:
    [[nodiscard]] QStringList takeCalls() { return std::exchange(calls_, {}); }

    void setProfiles(const QList<SystemProfile> &profiles) { profiles_ = profiles; }
    void setOutcome(Outcome outcome) { outcome_ = outcome; }

    /// The next answer doesn't come before `goOn` is called.
    void holdNext() { holdsNext_ = true; }
    void goOn() { std::exchange(held_, nullptr).resume(); }

    [[nodiscard]] Profiles profiles(QStringList ids) override
    {
        calls_.append(QStringLiteral("profiles ") + ids.join(u'|'));
        co_await Hold{*this};
        QList<SystemProfile> answer;
        for (const QString &id : std::as_const(ids)) {
            for (const SystemProfile &profile : std::as_const(profiles_)) {
                if (profile.id == id)
                    answer.append(profile);
            }
        }
        co_return answer;
    }

    [[nodiscard]] Profiles suggestedProfiles() override
    {
        calls_.append(QStringLiteral("suggested"));
        co_await Hold{*this};
        co_return profiles_;
    }

    [[nodiscard]] Profiles profilesMatching(QString text) override
    {
        calls_.append(QStringLiteral("matching ") + text);
        co_await Hold{*this};
        co_return profiles_;
    }

    [[nodiscard]] QCoro::Task<Outcome> openProfile(QString id) override
    {
        calls_.append(QStringLiteral("open ") + id);
        co_await Hold{*this};
        co_return outcome_;
    }

    [[nodiscard]] QCoro::Task<Outcome> openLinks(QList<QUrl> links, QString profileID) override
    {
        QStringList texts;
        for (const QUrl &link : std::as_const(links))
            texts.append(link.toString(QUrl::FullyEncoded));
        calls_.append(QStringLiteral("open %1 with %2").arg(profileID, texts.join(u'|')));
        co_await Hold{*this};
        co_return outcome_;
    }

private:
    struct Hold {
        FakeActionAnswers &answers;

        [[nodiscard]] bool await_ready() const noexcept { return !std::exchange(answers.holdsNext_, false); }
        void await_suspend(std::coroutine_handle<> answer) { answers.held_ = answer; }
        void await_resume() const noexcept {}
    };

    QStringList calls_;
    QList<SystemProfile> profiles_;
    Outcome outcome_ = Outcome::performed;
    bool holdsNext_ = false;
    std::coroutine_handle<> held_;
};

} // namespace vantrel::test
