#pragma once

#include "Platform/SearchIndex.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <concepts>

/// What every implementation of `SearchIndex` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name, SearchIndexContract,
/// System)`.
namespace vantrel::test {

/// An index that is empty at first. Provides the event loop.
template <typename System>
concept SearchIndexSystem = std::default_initializable<System> && requires(System system, const QString &message) {
    { system.index() } -> std::same_as<SearchIndex &>;
    /// What the system's search knows, in any order.
    { system.entries() } -> std::same_as<QList<SearchIndex::Entry>>;
    /// Every step fails from now on.
    { system.refuse(message) } -> std::same_as<void>;
};

template <SearchIndexSystem System>
class SearchIndexContract : public testing::Test {
protected:
    using Entries = QList<SearchIndex::Entry>;

    [[nodiscard]] static SearchIndex::Entry entry(const QString &id, const QByteArray &picture = {})
    {
        return {.id = id,
                .name = QStringLiteral("name of ") + id,
                .browser = QStringLiteral("browser"),
                .title = QStringLiteral("title of ") + id,
                .picture = picture};
    }

    void add(const Entries &entries)
    {
        const auto done = QCoro::waitFor(system_.index().add(entries));
        EXPECT_TRUE(done.has_value()) << done.error().message.toStdString();
    }

    void removeAll()
    {
        const auto done = QCoro::waitFor(system_.index().removeAll());
        EXPECT_TRUE(done.has_value()) << done.error().message.toStdString();
    }

    System system_;
};

TYPED_TEST_SUITE_P(SearchIndexContract);

TYPED_TEST_P(SearchIndexContract, WhatWasAddedIsKnownWithAllThatItHas)
{
    QList<SearchIndex::Entry> entries{this->entry(QStringLiteral("com.google.Chrome/chromium:Profile 1"))};
    for (const QString &text : oddTexts()) {
        // Nothing behind a zero byte is a text to the system.
        if (!text.contains(QChar(u'\0')))
            entries.append(this->entry(text, QByteArray("PNG\0\xff", 5)));
    }
    this->add(entries);
    EXPECT_EQ(this->system_.entries(), entries);
}

TYPED_TEST_P(SearchIndexContract, WhatIsAddedLaterLeavesWhatIsThere)
{
    const auto first = this->entry(QStringLiteral("1"));
    const auto second = this->entry(QStringLiteral("2"));
    this->add({first});
    this->add({});
    this->add({second});
    EXPECT_EQ(this->system_.entries(), (QList<SearchIndex::Entry>{first, second}));
}

TYPED_TEST_P(SearchIndexContract, OnceAllIsRemovedNothingIsLeftAndRemovingNothingIsNoFailure)
{
    this->removeAll();
    this->add({this->entry(QStringLiteral("1")), this->entry(QStringLiteral("2"))});
    this->removeAll();
    EXPECT_EQ(this->system_.entries(), QList<SearchIndex::Entry>());
    this->add({this->entry(QStringLiteral("2"))});
    EXPECT_EQ(this->system_.entries(), QList<SearchIndex::Entry>{this->entry(QStringLiteral("2"))});
}

TYPED_TEST_P(SearchIndexContract, AStepThatTheSystemRefusesFailsInItsWords)
{
    const PlatformError words{QStringLiteral("Der Index ist beschäftigt: 100 %")};
    const QList<SearchIndex::Entry> before{this->entry(QStringLiteral("1"))};
    this->add(before);
    this->system_.refuse(words.message);
    const auto added = QCoro::waitFor(this->system_.index().add({this->entry(QStringLiteral("2"))}));
    const auto removed = QCoro::waitFor(this->system_.index().removeAll());
    ASSERT_FALSE(added.has_value());
    ASSERT_FALSE(removed.has_value());
    EXPECT_EQ(added.error(), words);
    EXPECT_EQ(removed.error(), words);
    EXPECT_EQ(this->system_.entries(), before);
}

REGISTER_TYPED_TEST_SUITE_P(SearchIndexContract, WhatWasAddedIsKnownWithAllThatItHas, WhatIsAddedLaterLeavesWhatIsThere,
                            OnceAllIsRemovedNothingIsLeftAndRemovingNothingIsNoFailure,
                            AStepThatTheSystemRefusesFailsInItsWords);

} // namespace vantrel::test
