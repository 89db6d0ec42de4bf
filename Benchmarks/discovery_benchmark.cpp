// A whole discovery in the environment that the process is started in, as the app runs it: all installed browsers side
// by side, with and without pictures. `Benchmarks/run` starts it in the generated home.

#include "Platform/Platform.h"
#include "Vantrel/BrowserDiscovery.h"
#include "Vantrel/InstalledBrowsers.h"
#include "VantrelKit/AvatarThumbnail.h"
#include "VantrelKit/KnownBrowsers.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

using namespace vantrel;

namespace {

void discover(benchmark::State &state, const ProfileReader &reader)
{
    const Platform platform = Platform::create();
    qsizetype profiles = 0;
    for ([[maybe_unused]] const auto &iteration : state) {
        const QList<Browser> browsers = installedBrowsers(*platform.workspace, KnownBrowsers::all());
        const auto results = discoverBrowsers(reader, *platform.browserData, browsers);
        profiles = withResults(results, browsers, {}).size();
    }
    state.counters["profiles"] = static_cast<double>(profiles);
}

void installed(benchmark::State &state)
{
    const Platform platform = Platform::create();
    for ([[maybe_unused]] const auto &iteration : state)
        benchmark::DoNotOptimize(installedBrowsers(*platform.workspace, KnownBrowsers::all()));
}

const ProfileReader withPictures{.appSupportRoot = {}, .readPicture = avatarThumbnailPNG};
const ProfileReader withoutPictures;

} // namespace

BENCHMARK(installed)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(discover, names, withoutPictures)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(discover, names_and_pictures, withPictures)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
