#pragma once

#include "Platform/ProfileAnswers.h"

#include <QColor>

#include <coroutine>
#include <utility>

namespace vantrel::test {

/// Answers that a test sets. What was asked is kept, each as a text: "search a|b 20", "open ID a|b TOKEN STARTUP TIME".
class FakeProfileAnswers final : public ProfileAnswers {
public:
    [[nodiscard]] QStringList takeCalls() { return std::exchange(calls_, {}); }

    void find(const QString &id, const QString &title, Found::Fit fit)
    {
        const auto icon = [](int pixels) {
            QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
            image.fill(qRgba(1, 2, 3, 255));
            return image;
        };
        const auto file = [](int pixels) { return QByteArray::number(pixels).prepend("PNG "); };
        found_.append({id, title, QStringLiteral("about ") + title, fit, icon, file});
    }

    void setListed(const QList<Listed> &listed) { listed_ = listed; }
    void refuse(const Refusal &refusal) { outcome_ = std::unexpected(refusal); }

    /// The next answer doesn't come before `goOn` is called.
    void holdNext() { holdsNext_ = true; }
    [[nodiscard]] bool isHolding() const { return held_ != nullptr; }
    void goOn() { std::exchange(held_, nullptr).resume(); }

    [[nodiscard]] QCoro::Task<QList<Found>> search(QStringList terms, qsizetype limit) override
    {
        calls_.append(QStringLiteral("search %1 %2").arg(terms.join(u'|')).arg(limit));
        co_await Hold{*this};
        co_return found_;
    }

    [[nodiscard]] QCoro::Task<QList<Found>> found(QStringList ids) override
    {
        calls_.append(QStringLiteral("found ") + ids.join(u'|'));
        co_await Hold{*this};
        QList<Found> answer;
        for (const Found &each : std::as_const(found_)) {
            if (ids.contains(each.id))
                answer.append(each);
        }
        co_return answer;
    }

    [[nodiscard]] QCoro::Task<Outcome> openFound(QString id, Activation activation) override
    {
        calls_.append(QStringLiteral("open found %1 %2").arg(id, described(activation)));
        co_await Hold{*this};
        co_return outcome_;
    }

    void showList(const Activation &activation) override
    {
        calls_.append(QStringLiteral("show list ") + described(activation));
    }

    [[nodiscard]] QCoro::Task<QList<Listed>> list() override
    {
        calls_.append(QStringLiteral("list"));
        co_await Hold{*this};
        co_return listed_;
    }

    [[nodiscard]] QCoro::Task<Outcome> open(QString profileID, QStringList links, Activation activation) override
    {
        calls_.append(QStringLiteral("open %1 %2 %3").arg(profileID, links.join(u'|'), described(activation)));
        co_await Hold{*this};
        co_return outcome_;
    }

private:
    struct Hold {
        FakeProfileAnswers &answers;

        [[nodiscard]] bool await_ready() const noexcept { return !std::exchange(answers.holdsNext_, false); }
        void await_suspend(std::coroutine_handle<> answer) { answers.held_ = answer; }
        void await_resume() const noexcept {}
    };

    static QString described(const Activation &activation)
    {
        return QStringLiteral("[%1] [%2] %3").arg(activation.token, activation.startupID).arg(activation.time);
    }

    QStringList calls_;
    QList<Found> found_;
    QList<Listed> listed_;
    Outcome outcome_;
    bool holdsNext_ = false;
    std::coroutine_handle<> held_;
};

} // namespace vantrel::test
