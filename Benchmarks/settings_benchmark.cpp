// What it costs to open the settings with a thousand profiles of 36 browsers, and to scroll through them. The window is
// on no screen: what is measured is the program's own and Qt's work, not that of a display server.

#include "Tests/Vantrel/Interface/Settings/SettingsProgram.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include "Benchmarks/FirstPaint.h"

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

constexpr int browserCount = 36;
constexpr int profileCount = 1000;
/// As a wheel does with one notch.
constexpr int wheelStep = 60;

DiscoveredProfile discovered(int number)
{
    return {u"Клиент & Söhne %1"_s.arg(number), u"Profile %1"_s.arg(number)};
}

test::SettingsProgram &program()
{
    static test::SettingsProgram program;
    if (!program.store.browsers().isEmpty())
        return program;
    QList<Browser> browsers;
    DiscoveryResults results;
    for (int browser = 0; browser < browserCount; ++browser) {
        const QString id = u"org.example.Browser%1"_s.arg(browser);
        browsers.append({id, u"Browser %1"_s.arg(browser), {}, BrowserFamily::chromium});
        QList<DiscoveredProfile> profiles;
        for (int number = browser; number < profileCount; number += browserCount)
            profiles.append(discovered(number));
        results.insert(id, profiles);
    }
    program.store.setBrowsers(browsers);
    program.store.apply(results);
    return program;
}

std::unique_ptr<SettingsWindow> openSettings()
{
    auto window = std::make_unique<SettingsWindow>(program().settings());
    FirstPaint paint;
    window->installEventFilter(&paint);
    window->show();
    paint.wait();
    return window;
}

void opening(benchmark::State &state)
{
    program();
    for ([[maybe_unused]] const auto &iteration : state) {
        const std::unique_ptr<SettingsWindow> window = openSettings();
        state.PauseTiming();
        window->close();
        state.ResumeTiming();
    }
}

/// One notch of the wheel after the other, down to the end and up again.
void scrolling(benchmark::State &state)
{
    const std::unique_ptr<SettingsWindow> window = openSettings();
    QScrollBar *bar = window->findChild<ProfilesView *>()->verticalScrollBar();
    int step = wheelStep;
    for ([[maybe_unused]] const auto &iteration : state) {
        const int before = bar->value();
        bar->setValue(before + step);
        if (bar->value() == before)
            step = -step;
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// What every change of the store costs while the window is open.
void change(benchmark::State &state)
{
    const std::unique_ptr<SettingsWindow> window = openSettings();
    const Profile profile = program().store.profiles().first();
    bool isHidden = false;
    for ([[maybe_unused]] const auto &iteration : state) {
        isHidden = !isHidden;
        program().store.setHidden(isHidden, profile);
        QCoreApplication::sendPostedEvents();
    }
}

BENCHMARK(opening)->Unit(benchmark::kMillisecond);
BENCHMARK(scrolling)->Unit(benchmark::kMillisecond);
BENCHMARK(change)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"qt.qpa.*=false"_s);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
