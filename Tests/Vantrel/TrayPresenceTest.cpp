#include "Vantrel/TrayPresence.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A panel that comes and goes as a test says.
class PlayedPanel final : public StatusItem {
public:
    void start(Content content, std::function<void(bool)> shownChanged) override
    {
        title_ = content.title;
        shownChanged_ = std::move(shownChanged);
    }
    void updateMenu() override {}

    void setShown(bool isShown) { shownChanged_(isShown); }
    [[nodiscard]] const QString &title() const { return title_; }

private:
    QString title_;
    std::function<void(bool)> shownChanged_;
};

struct TrayState {
    bool isAvailable = false;
    QStringList calls;
};

class PlayedTray final : public TrayIcon {
public:
    explicit PlayedTray(TrayState &state) : state_(state) { state.calls.append(u"make"_s); }
    void show() override { state_.calls.append(u"show"_s); }
    void hide() override { state_.calls.append(u"hide"_s); }
    [[nodiscard]] bool isAvailable() const override { return state_.isAvailable; }

private:
    TrayState &state_;
};

class TrayPresenceTest : public testing::Test {
protected:
    [[nodiscard]] TrayPresence::Environment environment(StatusItem *panel)
    {
        return {panel, [this] { return std::make_unique<PlayedTray>(tray_); }, log_, [this] { ++told_; },
                [this] { ++placed_; }};
    }

    /// Lets the patience run out.
    void wait(const TrayPresence &)
    {
        bool isOver = false;
        QTimer::singleShot(patience_ * 3, [&isOver] { isOver = true; });
        ASSERT_TRUE(test::waitUntil([&isOver] { return isOver; }));
    }

    const std::chrono::milliseconds patience_{20};
    test::EventProgram program_;
    test::FakeLog log_;
    PlayedPanel panel_;
    TrayState tray_;
    int told_ = 0;
    int placed_ = 0;
};

TEST_F(TrayPresenceTest, APanelIsEnough)
{
    TrayPresence presence(environment(&panel_), patience_);
    presence.start({.title = u"Vantrel"_s, .iconName = {}, .icon = {}, .menu = {}});
    EXPECT_EQ(panel_.title(), u"Vantrel"_s);
    panel_.setShown(true);
    wait(presence);
    EXPECT_TRUE(tray_.calls.isEmpty());
    EXPECT_EQ(told_, 0);
}

TEST_F(TrayPresenceTest, WithoutAPanelThereIsASymbolInTheTray)
{
    tray_.isAvailable = true;
    TrayPresence presence(environment(&panel_), patience_);
    presence.start({});
    EXPECT_TRUE(tray_.calls.isEmpty());
    panel_.setShown(false);
    EXPECT_EQ(tray_.calls, QStringList({u"make"_s, u"show"_s}));
    wait(presence);
    EXPECT_EQ(told_, 0);
}

TEST_F(TrayPresenceTest, APanelThatComesLaterTakesThePlaceOfTheTray)
{
    TrayPresence presence(environment(&panel_), patience_);
    presence.start({});
    panel_.setShown(false);
    panel_.setShown(true);
    EXPECT_EQ(tray_.calls, QStringList({u"make"_s, u"show"_s, u"hide"_s}));
    panel_.setShown(false);
    EXPECT_EQ(tray_.calls.last(), u"show"_s);
    EXPECT_EQ(tray_.calls.count(u"make"_s), 1);
}

TEST_F(TrayPresenceTest, WhereThereAreNoPanelsTheTrayIsUsedAtOnce)
{
    TrayPresence presence(environment(nullptr), patience_);
    presence.start({});
    EXPECT_EQ(tray_.calls, QStringList({u"make"_s, u"show"_s}));
}

TEST_F(TrayPresenceTest, ADesktopWithoutAnyPlaceIsToldOnceAfterAWhile)
{
    TrayPresence presence(environment(&panel_), patience_);
    presence.start({});
    panel_.setShown(false);
    EXPECT_EQ(told_, 0);
    ASSERT_TRUE(test::waitUntil([this] { return told_ > 0; }));
    wait(presence);
    EXPECT_EQ(told_, 1);
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Menu] This desktop has no place for the menu's symbol"_s));
}

TEST_F(TrayPresenceTest, TellsOnceThatItKnowsWhereTheSymbolGoes)
{
    TrayPresence presence(environment(&panel_), patience_);
    presence.start({});
    EXPECT_EQ(placed_, 0);
    panel_.setShown(false);
    panel_.setShown(true);
    EXPECT_EQ(placed_, 1);
    TrayPresence other(environment(nullptr), patience_);
    other.start({});
    EXPECT_EQ(placed_, 2);
}

TEST_F(TrayPresenceTest, ABusThatNeverAnswersIsLikeNoPanel)
{
    TrayPresence presence(environment(&panel_), patience_);
    presence.start({});
    ASSERT_TRUE(test::waitUntil([this] { return told_ > 0; }));
    EXPECT_EQ(placed_, 1);
}

} // namespace
} // namespace vantrel
