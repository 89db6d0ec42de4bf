#include "Vantrel/Safari/LinkPlacer.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeSafariBridge.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

class LinkPlacerTest : public testing::Test {
protected:
    QStringList place(const QStringList &links, const QStringList &tabs)
    {
        bridge_.application().windows = {{.id = 7, .tabs = tabs}, {.id = 8, .tabs = {}}};
        QCoro::waitFor(placer_.place(QUrl::fromStringList(links), bridge_.shared(), 7));
        return bridge_.application().takeCalls();
    }

    test::EventProgram program_;
    test::FakeSafariBridge bridge_;
    test::FakeLog log_;
    LinkPlacer placer_{log_};
};

TEST_F(LinkPlacerTest, TheFirstLinkTakesTheStartPagesPlaceAndTheOthersTheirOwn)
{
    for (const QString &start : {u"favorites://"_s, u""_s}) {
        EXPECT_EQ(place({u"https://a.example/"_s, u"https://b.example/x%20y?q#f"_s, u"file:///c"_s}, {start}),
                  QStringList({u"url 7 0 https://a.example/"_s, u"current 7 0"_s, u"tab 7"_s,
                               u"url 7 1 https://b.example/x%20y?q#f"_s, u"current 7 1"_s, u"tab 7"_s,
                               u"url 7 2 file:///c"_s, u"current 7 2"_s}));
    }
}

TEST_F(LinkPlacerTest, PagesAreNeverReplaced)
{
    const QList<QStringList> windows{{u"https://home.example/"_s}, {u""_s, u""_s}, {u"favorites://x"_s}, {}};
    for (const QStringList &tabs : windows) {
        const QString number = QString::number(tabs.size());
        EXPECT_EQ(place({u"https://a.example/"_s}, tabs),
                  QStringList({u"tab 7"_s, u"url 7 "_s + number + u" https://a.example/"_s, u"current 7 "_s + number}));
    }
}

TEST_F(LinkPlacerTest, WithoutTabsNoLinkIsPlaced)
{
    bridge_.application().hasTabs = false;
    EXPECT_EQ(place({u"https://a.example/"_s}, {u""_s}), QStringList());
    EXPECT_EQ(log_.takeLines(), QStringList(u"[ScriptingErrors] error: Safari window's tabs unreadable"_s));
}

TEST_F(LinkPlacerTest, ATabThatCanNotBeMadeCostsItsLinkAlone)
{
    bridge_.application().refusedTabs = 1;
    EXPECT_EQ(place({u"https://a.example/"_s, u"https://b.example/"_s, u"https://c.example/"_s}, {u""_s}),
              QStringList({u"url 7 0 https://a.example/"_s, u"current 7 0"_s, u"tab 7"_s,
                           u"url 7 1 https://c.example/"_s, u"current 7 1"_s}));
    EXPECT_EQ(log_.takeLines(), QStringList(u"[ScriptingErrors] error: Safari tab not created"_s));
}

} // namespace
} // namespace vantrel::Safari
