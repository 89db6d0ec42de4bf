#include "Platform/AppIntents/AppEntityIndex.h"

#include "Platform/AppIntents/ActionsBridge.h"
#include "Tests/Vantrel/EventLoop.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Stands for Swift's part, of which there is one.
struct System {
    void *context = nullptr;
    AppEntityIndex::End end = nullptr;
    QStringList added;

    static System &only()
    {
        static System system;
        return system;
    }

    static void removeAll(void *context, AppEntityIndex::End end)
    {
        only().context = context;
        only().end = end;
    }

    static void add(const VantrelProfile *profiles, std::size_t count, void *context, AppEntityIndex::End end)
    {
        for (std::size_t at = 0; at < count; ++at) {
            const VantrelProfile &each = profiles[at];
            only().added.append(QStringList{QString::fromUtf8(each.id), QString::fromUtf8(each.name),
                                            QString::fromUtf8(each.browser), QString::fromUtf8(each.title),
                                            QString::number(each.pictureSize)}
                                    .join(u'|'));
        }
        removeAll(context, end);
    }
};

using Result = std::expected<void, PlatformError>;

class AppEntityIndexTest : public testing::Test {
protected:
    AppEntityIndexTest() { System::only() = {}; }

    void follow(SearchIndex::Step step)
    {
        result_.reset();
        step.then([this](const Result &result) { result_ = result; });
    }

    test::EventProgram program_;
    AppEntityIndex index_{{System::removeAll, System::add}};
    std::optional<Result> result_;
};

TEST_F(AppEntityIndexTest, AStepIsDoneWhenTheSystemHasEndedIt)
{
    follow(index_.removeAll());
    test::settle();
    EXPECT_FALSE(result_);
    ASSERT_NE(System::only().end, nullptr);
    System::only().end(System::only().context, nullptr);
    ASSERT_TRUE(test::waitUntil([this] { return result_.has_value(); }));
    EXPECT_EQ(result_, Result());
}

TEST_F(AppEntityIndexTest, ProfilesAreHandedOnWithAllThatTheyHave)
{
    follow(index_.add(
        {{u"a/1"_s, u"Büro"_s, u"A"_s, u"A – Büro"_s, QByteArray("PNG")}, {u"a/2"_s, u"Two"_s, u"A"_s, {}, {}}}));
    EXPECT_EQ(System::only().added, QStringList({u"a/1|Büro|A|A – Büro|3"_s, u"a/2|Two|A||0"_s}));
    System::only().end(System::only().context, nullptr);
    ASSERT_TRUE(test::waitUntil([this] { return result_.has_value(); }));
    EXPECT_EQ(result_, Result());
}

TEST_F(AppEntityIndexTest, NoProfilesAreAStepAsWell)
{
    follow(index_.add({}));
    EXPECT_EQ(System::only().added, QStringList());
    System::only().end(System::only().context, nullptr);
    ASSERT_TRUE(test::waitUntil([this] { return result_.has_value(); }));
}

TEST_F(AppEntityIndexTest, AFailureIsInTheSystemsWords)
{
    follow(index_.removeAll());
    System::only().end(System::only().context, QByteArray("Der Index ist beschäftigt.").constData());
    ASSERT_TRUE(test::waitUntil([this] { return result_.has_value(); }));
    EXPECT_EQ(result_, Result(std::unexpected(PlatformError{u"Der Index ist beschäftigt."_s})));
}

TEST_F(AppEntityIndexTest, AnEndOnAnotherThreadIsHeardOnTheCallersOne)
{
    std::optional<std::thread::id> heard;
    index_.removeAll().then([&heard](const Result &) { heard = std::this_thread::get_id(); });
    std::thread([] { System::only().end(System::only().context, nullptr); }).join();
    ASSERT_TRUE(test::waitUntil([&heard] { return heard.has_value(); }));
    EXPECT_EQ(heard, std::this_thread::get_id());
}

} // namespace
} // namespace vantrel
