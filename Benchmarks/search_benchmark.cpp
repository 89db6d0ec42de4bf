// What a search over ten thousand profiles costs: the program's own work on what a desktop asks at each key. Then the
// same with the profiles' titles folded anew each time, as without ProfileTitles, for comparison; and what a change of
// the store costs, which folds them once.

#include "Tests/Fakes/FakeLog.h"
#include "Vantrel/Actions/FoldedText.h"
#include "Vantrel/Actions/ProfileQuery.h"
#include "Vantrel/Actions/ProfileSearch.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

DiscoveredProfile discovered(int number)
{
    return {u"Клиент & Söhne %1"_s.arg(number), u"Profile %1"_s.arg(number)};
}

constexpr int browserCount = 8;
constexpr int profilesPerBrowser = 1250;
constexpr qsizetype noLimit = std::numeric_limits<qsizetype>::max();
/// As KRunner is answered.
constexpr qsizetype limitOfDesktop = 20;

class Profiles {
public:
    Profiles()
    {
        QList<Browser> browsers;
        DiscoveryResults results;
        for (int browser = 0; browser < browserCount; ++browser) {
            const QString id = u"org.example.Browser%1"_s.arg(browser);
            browsers.append({id, u"Browser %1"_s.arg(browser), {}, BrowserFamily::chromium});
            QList<DiscoveredProfile> profiles;
            for (int number = 0; number < profilesPerBrowser; ++number)
                profiles.append(discovered(number));
            results.insert(id, profiles);
        }
        store_.setBrowsers(browsers);
        store_.apply(results);
    }

    [[nodiscard]] ProfileStore &store() { return store_; }

private:
    test::FakeLog log_;
    ProfileStore store_{{}, log_, ProfileStore::Liveness::detached};
};

Profiles &profiles()
{
    static Profiles profiles;
    return profiles;
}

/// What somebody types: a letter that all titles have, a browser and a name, a name that one profile has, nothing that
/// is there, and a link alone.
const std::array typed{u"s"_s, u"browser sohne"_s, u"sohne 1249"_s, u"nobody here"_s, u"https://example.org"_s};

void search(benchmark::State &state)
{
    ProfileTitles titles(profiles().store());
    const ProfileSearch search(titles);
    const QString &text = typed.at(static_cast<std::size_t>(state.range(0)));
    state.SetLabel(text.toStdString());
    for ([[maybe_unused]] const auto &iteration : state)
        benchmark::DoNotOptimize(search.matches(SearchTerms::parse({text}), limitOfDesktop));
}

void everyMatch(benchmark::State &state)
{
    ProfileTitles titles(profiles().store());
    const ProfileSearch search(titles);
    for ([[maybe_unused]] const auto &iteration : state)
        benchmark::DoNotOptimize(search.matches(SearchTerms::parse({u"s"_s}), noLimit));
}

void everyEntity(benchmark::State &state)
{
    ProfileTitles titles(profiles().store());
    const ProfileQuery query(titles);
    for ([[maybe_unused]] const auto &iteration : state)
        benchmark::DoNotOptimize(query.entitiesMatching(u"s"_s));
}

void foldedEachTime(benchmark::State &state)
{
    const ProfileCatalogue &catalogue = profiles().store().catalogue();
    const QString wanted = foldedText(u"sohne 1249"_s);
    for ([[maybe_unused]] const auto &iteration : state) {
        const auto count = std::ranges::count_if(catalogue.profiles, [&](const Profile &profile) {
            return foldedText(catalogue.title(profile)).contains(wanted);
        });
        benchmark::DoNotOptimize(count);
    }
}

void changeOfTheStore(benchmark::State &state)
{
    ProfileStore &store = profiles().store();
    ProfileTitles titles(store);
    const Profile profile = store.profiles().first();
    bool isHidden = false;
    for ([[maybe_unused]] const auto &iteration : state) {
        isHidden = !isHidden;
        store.setHidden(isHidden, profile);
        benchmark::DoNotOptimize(titles.rows());
    }
    store.setHidden(false, profile);
}

} // namespace

BENCHMARK(search)->DenseRange(0, typed.size() - 1)->Unit(benchmark::kMillisecond);
BENCHMARK(everyMatch)->Unit(benchmark::kMillisecond);
BENCHMARK(everyEntity)->Unit(benchmark::kMillisecond);
BENCHMARK(foldedEachTime)->Unit(benchmark::kMillisecond);
BENCHMARK(changeOfTheStore)->Unit(benchmark::kMillisecond);

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
