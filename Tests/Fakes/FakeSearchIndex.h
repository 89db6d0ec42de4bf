#pragma once

#include "Platform/SearchIndex.h"

#include <QStringList>

#include <coroutine>
#include <utility>

namespace vantrel::test {

/// A search index in memory. What was asked of it is kept: "remove all", "add TITLE, TITLE".
class FakeSearchIndex final : public SearchIndex {
public:
    /// What a search would find now.
    [[nodiscard]] const QList<Entry> &entries() const { return entries_; }
    [[nodiscard]] QStringList takeCalls() { return std::exchange(calls_, {}); }

    /// Every step fails from now on; an empty message lets them succeed again.
    void refuse(const QString &message) { refusal_ = message; }

    /// The next step doesn't end before `finish` is called.
    void holdNext() { holdsNext_ = true; }
    void finish() { std::exchange(held_, nullptr).resume(); }

    [[nodiscard]] Step removeAll() override
    {
        calls_.append(QStringLiteral("remove all"));
        return end({});
    }

    [[nodiscard]] Step add(QList<Entry> entries) override
    {
        QStringList titles;
        for (const Entry &entry : std::as_const(entries))
            titles.append(entry.title);
        calls_.append(QStringLiteral("add ") + titles.join(QStringLiteral(", ")));
        return end(entries_ + entries);
    }

private:
    struct Hold {
        FakeSearchIndex &index;

        [[nodiscard]] bool await_ready() const noexcept { return !std::exchange(index.holdsNext_, false); }
        void await_suspend(std::coroutine_handle<> step) { index.held_ = step; }
        void await_resume() const noexcept {}
    };

    [[nodiscard]] Step end(QList<Entry> entries)
    {
        co_await Hold{*this};
        if (!refusal_.isEmpty())
            co_return std::unexpected(PlatformError{refusal_});
        entries_ = std::move(entries);
        co_return {};
    }

    QList<Entry> entries_;
    QStringList calls_;
    QString refusal_;
    bool holdsNext_ = false;
    std::coroutine_handle<> held_;
};

} // namespace vantrel::test
