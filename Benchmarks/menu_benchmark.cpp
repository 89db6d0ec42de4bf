// What it costs to open the menu of a thousand profiles, half of them with a picture: its rows, the window that shows
// them where there is a tray only, and the answer to a panel that draws the menu itself. The window is on no screen:
// what is measured is the program's own and Qt's work, not that of a display server.

#include "Platform/ActivationSource.h"
#include "Platform/Linux/StatusItem/DBusMenuObject.h"
#include "Platform/StatusItem.h"
#include "Tests/Fakes/FakeLog.h"
#include "Vantrel/Interface/PopupMenu.h"
#include "Vantrel/Pictures/ProfileIconCache.h"
#include "Vantrel/ProfileMenu.h"

#include <QApplication>
#include <QBuffer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>

#include <tuple>
#include <utility>

#include "Benchmarks/FirstPaint.h"

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

constexpr int browserCount = 8;
constexpr int profilesPerBrowser = 125;
constexpr int pictureSize = 128;
/// What every panel asks for with the rows.
constexpr int wholeMenu = -1;

/// A picture that compresses as a photograph does: a gradient under fine noise.
QByteArray portrait(QRandomGenerator &random)
{
    QImage picture(pictureSize, pictureSize, QImage::Format_RGB32);
    for (int y = 0; y < pictureSize; ++y) {
        for (int x = 0; x < pictureSize; ++x) {
            const auto noise = [&random](int level) { return level ^ static_cast<int>(random.generate() & 7U); };
            picture.setPixel(x, y, qRgb(noise(x), noise(y), noise((x + y) / 2)));
        }
    }
    QByteArray png;
    QBuffer file(&png);
    file.open(QIODevice::WriteOnly);
    picture.save(&file, "PNG");
    return png;
}

DiscoveredProfile discovered(int number, QRandomGenerator &random)
{
    DiscoveredProfile profile{u"Клиент & Söhne %1"_s.arg(number), u"Profile %1"_s.arg(number)};
    if (number % 2 == 0)
        profile.avatarPNG = portrait(random);
    return profile;
}

/// The store with what the app makes of it for a menu.
class Profiles {
public:
    Profiles()
    {
        QRandomGenerator random(20261121);
        QList<Browser> browsers;
        DiscoveryResults results;
        for (int browser = 0; browser < browserCount; ++browser) {
            const QString id = u"org.example.Browser%1"_s.arg(browser);
            browsers.append({id, u"Browser %1"_s.arg(browser), {}, BrowserFamily::chromium});
            QList<DiscoveredProfile> profiles;
            for (int number = 0; number < profilesPerBrowser; ++number)
                profiles.append(discovered(number, random));
            results.insert(id, profiles);
        }
        store_.setBrowsers(browsers);
        store_.apply(results);
    }

    [[nodiscard]] Menu menu()
    {
        return profileMenu(store_, {.open = [](const Profile &) {},
                                    .findProfiles = [] {},
                                    .showSettings = [] {},
                                    .quit = [] {},
                                    .icon =
                                        [this](const Profile &profile, int pixels) {
                                            ++wantedIcons_;
                                            return icons_.image(iconOf(profile), pixels);
                                        },
                                    .iconPNG =
                                        [this](const Profile &profile, int pixels) {
                                            ++wantedIcons_;
                                            return icons_.png(iconOf(profile), pixels);
                                        }});
    }

    /// As the app does once it has read the profiles.
    void prepareIcons(ProfileIconCache::Sizes sizes)
    {
        QList<ProfileIcon> icons;
        for (const Profile &profile : store_.profiles())
            icons.append(iconOf(profile));
        QEventLoop loop;
        QObject::connect(&icons_, &ProfileIconCache::prepared, &loop, &QEventLoop::quit);
        icons_.prepare(icons, sizes);
        loop.exec();
    }

    void forgetIcons() { icons_.keepOnly({}); }

    /// How many icons were asked for since the last time.
    [[nodiscard]] qsizetype takeWantedIcons() { return std::exchange(wantedIcons_, 0); }

private:
    [[nodiscard]] ProfileIcon iconOf(const Profile &profile) const
    {
        return ProfileIcon::of(profile, store_.displayName(profile));
    }

    test::FakeLog log_;
    ProfileStore store_{{}, log_, ProfileStore::Liveness::detached};
    ProfileIconCache icons_;
    qsizetype wantedIcons_ = 0;
};

Profiles &profiles()
{
    static Profiles profiles;
    return profiles;
}

/// Shows how many icons each round has asked for.
void countIcons(benchmark::State &state)
{
    const auto icons = static_cast<double>(profiles().takeWantedIcons());
    state.counters["icons"] = benchmark::Counter(icons, benchmark::Counter::kAvgIterations);
}

void open(PopupMenu &menu)
{
    FirstPaint paint;
    menu.installEventFilter(&paint);
    menu.popup({10, 10});
    paint.wait();
}

void rows(benchmark::State &state)
{
    profiles();
    for ([[maybe_unused]] const auto &iteration : state)
        benchmark::DoNotOptimize(profiles().menu());
}

/// As soon as the program has started: the menu has never been shown, and with the argument 0 nothing was prepared yet.
void firstPopup(benchmark::State &state)
{
    std::ignore = profiles().takeWantedIcons();
    for ([[maybe_unused]] const auto &iteration : state) {
        state.PauseTiming();
        profiles().forgetIcons();
        auto menu = std::make_unique<PopupMenu>([] { return profiles().menu(); }, TrayHost::plain);
        if (state.range(0) != 0) {
            profiles().prepareIcons({.image = menu->iconPixels()});
            menu->prepare();
        }
        state.ResumeTiming();
        open(*menu);
        state.PauseTiming();
        menu.reset();
        state.ResumeTiming();
    }
    countIcons(state);
}

void laterPopup(benchmark::State &state)
{
    PopupMenu menu([] { return profiles().menu(); }, TrayHost::plain);
    open(menu);
    menu.hide();
    std::ignore = profiles().takeWantedIcons();
    for ([[maybe_unused]] const auto &iteration : state) {
        open(menu);
        state.PauseTiming();
        menu.hide();
        state.ResumeTiming();
    }
    countIcons(state);
}

void askAsPanelsDo(DBusMenuObject &menu)
{
    benchmark::DoNotOptimize(menu.AboutToShow(0));
    DBusMenuLayout layout;
    menu.GetLayout(0, wholeMenu, {}, layout);
    benchmark::DoNotOptimize(layout);
}

void firstPanel(benchmark::State &state)
{
    ActivationSource source;
    std::ignore = profiles().takeWantedIcons();
    for ([[maybe_unused]] const auto &iteration : state) {
        state.PauseTiming();
        profiles().forgetIcons();
        if (state.range(0) != 0)
            profiles().prepareIcons({.png = StatusItem::menuIconPixels});
        DBusMenuObject menu([] { return profiles().menu(); }, source);
        state.ResumeTiming();
        askAsPanelsDo(menu);
    }
    countIcons(state);
}

void laterPanel(benchmark::State &state)
{
    ActivationSource source;
    DBusMenuObject menu([] { return profiles().menu(); }, source);
    askAsPanelsDo(menu);
    std::ignore = profiles().takeWantedIcons();
    for ([[maybe_unused]] const auto &iteration : state)
        askAsPanelsDo(menu);
    countIcons(state);
}

} // namespace

BENCHMARK(rows)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(firstPopup)->ArgName("prepared")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(laterPopup)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(firstPanel)->ArgName("prepared")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(laterPanel)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    // A menu wants more of a screen than there is here.
    QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
