#include "VantrelKit/KnownBrowsers.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Identifier and data folder.
using Rows = std::vector<std::pair<QString, QString>>;

const Rows &chromiumRows()
{
    static const Rows rows{
        {u"com.google.Chrome"_s, u"Google/Chrome"_s},
        {u"com.google.Chrome.beta"_s, u"Google/Chrome Beta"_s},
        {u"com.google.Chrome.dev"_s, u"Google/Chrome Dev"_s},
        {u"com.google.Chrome.canary"_s, u"Google/Chrome Canary"_s},
        {u"com.microsoft.edgemac"_s, u"Microsoft Edge"_s},
        {u"com.microsoft.edgemac.Beta"_s, u"Microsoft Edge Beta"_s},
        {u"com.microsoft.edgemac.Dev"_s, u"Microsoft Edge Dev"_s},
        {u"com.microsoft.edgemac.Canary"_s, u"Microsoft Edge Canary"_s},
        {u"com.brave.Browser"_s, u"BraveSoftware/Brave-Browser"_s},
        {u"com.brave.Browser.beta"_s, u"BraveSoftware/Brave-Browser-Beta"_s},
        {u"com.brave.Browser.dev"_s, u"BraveSoftware/Brave-Browser-Dev"_s},
        {u"com.brave.Browser.nightly"_s, u"BraveSoftware/Brave-Browser-Nightly"_s},
        {u"com.brave.Browser.origin"_s, u"BraveSoftware/Brave-Origin"_s},
        {u"com.brave.Browser.origin.beta"_s, u"BraveSoftware/Brave-Origin-Beta"_s},
        {u"com.brave.Browser.origin.nightly"_s, u"BraveSoftware/Brave-Origin-Nightly"_s},
        {u"com.vivaldi.Vivaldi"_s, u"Vivaldi"_s},
        {u"com.operasoftware.Opera"_s, u"com.operasoftware.Opera"_s},
        {u"com.operasoftware.OperaGX"_s, u"com.operasoftware.OperaGX"_s},
        {u"org.chromium.Chromium"_s, u"Chromium"_s},
        {u"com.chromium.ungoogled"_s, u"Ungoogled Chromium"_s},
        {u"com.pushplaylabs.sidekick"_s, u"Sidekick"_s},
        {u"com.yandex.desktop"_s, u"Yandex/YandexBrowser"_s},
        {u"de.srware.iron"_s, u"SRWare Iron"_s},
        {u"com.slimjet.browser"_s, u"Slimjet"_s},
        {u"com.coccoc.coccocbrowser"_s, u"CocCoc"_s},
        {u"com.epic.EpicPrivacyBrowser"_s, u"Epic"_s},
        {u"org.chromium.Thorium"_s, u"Thorium"_s},
        {u"com.bookry.wavebox"_s, u"WaveboxApp"_s},
        {u"ai.perplexity.comet"_s, u"Comet"_s},
        {u"net.imput.helium"_s, u"net.imput.helium"_s},
    };
    return rows;
}

const Rows &firefoxRows()
{
    static const Rows rows{
        {u"org.mozilla.firefox"_s, u"Firefox"_s},
        {u"org.mozilla.firefoxbeta"_s, u"Firefox"_s},
        {u"org.mozilla.firefoxdeveloperedition"_s, u"Firefox"_s},
        {u"org.mozilla.aurora"_s, u"Firefox"_s},
        {u"org.mozilla.nightly"_s, u"Firefox"_s},
        {u"app.zen-browser.zen"_s, u"zen"_s},
    };
    return rows;
}

/// Texts that are nearly the identifier, and not one.
QStringList lookalikes(const QString &identifier)
{
    return {identifier.toUpper(), identifier.toLower(),  identifier + u' ', u' ' + identifier,
            identifier + u'.',    identifier.chopped(1), identifier + u'\n'};
}

TEST(KnownBrowsers, TheChromiumTableHoldsThirtyBrowsersAndTheirFolders)
{
    ASSERT_EQ(chromiumRows().size(), 30U);
    for (const auto &[identifier, folder] : chromiumRows()) {
        EXPECT_EQ(KnownBrowsers::family(identifier), BrowserFamily::chromium) << identifier.toStdString();
        EXPECT_EQ(KnownBrowsers::dataFolder(identifier), folder) << identifier.toStdString();
    }
}

TEST(KnownBrowsers, TheFirefoxTableHoldsSixBrowsersAndTheirFolders)
{
    ASSERT_EQ(firefoxRows().size(), 6U);
    for (const auto &[identifier, folder] : firefoxRows()) {
        EXPECT_EQ(KnownBrowsers::family(identifier), BrowserFamily::firefox) << identifier.toStdString();
        EXPECT_EQ(KnownBrowsers::dataFolder(identifier), folder) << identifier.toStdString();
    }
}

TEST(KnownBrowsers, SafariAndItsPreviewHaveNoDataFolder)
{
    for (const QString &identifier : {u"com.apple.Safari"_s, u"com.apple.SafariTechnologyPreview"_s}) {
        EXPECT_EQ(KnownBrowsers::family(identifier), BrowserFamily::safari);
        EXPECT_EQ(KnownBrowsers::dataFolder(identifier), std::nullopt);
    }
}

TEST(KnownBrowsers, AllBeginsWithSafariThenChromiumSortedThenFirefoxSorted)
{
    QStringList chromium;
    for (const auto &[identifier, folder] : chromiumRows())
        chromium.append(identifier);
    QStringList firefox;
    for (const auto &[identifier, folder] : firefoxRows())
        firefox.append(identifier);
    std::ranges::sort(chromium);
    std::ranges::sort(firefox);
    const QStringList safari{u"com.apple.Safari"_s, u"com.apple.SafariTechnologyPreview"_s};
    EXPECT_EQ(KnownBrowsers::all(), safari + chromium + firefox);
}

TEST(KnownBrowsers, AllIsSortedByCodeUnitsWithinAFamily)
{
    // Upper case before lower case, and a prefix before what it begins.
    const QStringList &all = KnownBrowsers::all();
    EXPECT_EQ(all.mid(2, 4), QStringList({u"ai.perplexity.comet"_s, u"com.bookry.wavebox"_s, u"com.brave.Browser"_s,
                                          u"com.brave.Browser.beta"_s}));
    EXPECT_LT(all.indexOf(u"com.microsoft.edgemac.Canary"_s), all.indexOf(u"com.microsoft.edgemac.Dev"_s));
    EXPECT_LT(all.indexOf(u"org.chromium.Chromium"_s), all.indexOf(u"org.chromium.Thorium"_s));
    EXPECT_EQ(all.mid(32), QStringList({u"app.zen-browser.zen"_s, u"org.mozilla.aurora"_s, u"org.mozilla.firefox"_s,
                                        u"org.mozilla.firefoxbeta"_s, u"org.mozilla.firefoxdeveloperedition"_s,
                                        u"org.mozilla.nightly"_s}));
}

TEST(KnownBrowsers, EveryIdentifierHasAFamilyAndStandsOnce)
{
    QStringList all = KnownBrowsers::all();
    EXPECT_EQ(all.size(), 38);
    EXPECT_EQ(all.removeDuplicates(), 0);
    for (const QString &identifier : all)
        EXPECT_TRUE(KnownBrowsers::family(identifier)) << identifier.toStdString();
}

TEST(KnownBrowsers, IdentifiersAreComparedExactly)
{
    for (const QString &identifier : KnownBrowsers::all()) {
        for (const QString &other : lookalikes(identifier)) {
            if (KnownBrowsers::all().contains(other))
                continue;
            EXPECT_EQ(KnownBrowsers::family(other), std::nullopt) << other.toStdString();
            EXPECT_EQ(KnownBrowsers::dataFolder(other), std::nullopt) << other.toStdString();
        }
    }
    EXPECT_EQ(KnownBrowsers::family(u"com.google.chrome"_s), std::nullopt);
    EXPECT_EQ(KnownBrowsers::dataFolder(u"com.google.chrome"_s), std::nullopt);
}

TEST(KnownBrowsers, AnEmptyOrForeignIdentifierIsUnknown)
{
    for (const QString &identifier : QStringList{{}, u""_s, u"org.example.browser"_s} + test::oddTexts()) {
        EXPECT_EQ(KnownBrowsers::family(identifier), std::nullopt);
        EXPECT_EQ(KnownBrowsers::dataFolder(identifier), std::nullopt);
        EXPECT_FALSE(KnownBrowsers::isEdge(identifier));
    }
}

TEST(KnownBrowsers, TheMozillaEditionsShareOneFolder)
{
    EXPECT_EQ(KnownBrowsers::dataFolder(u"org.mozilla.nightly"_s), KnownBrowsers::dataFolder(u"org.mozilla.firefox"_s));
}

TEST(KnownBrowsers, EveryChannelOfEdgeIsEdgeAndNothingElseIs)
{
    for (const QString &identifier : KnownBrowsers::all())
        EXPECT_EQ(KnownBrowsers::isEdge(identifier), identifier.startsWith(u"com.microsoft."_s))
            << identifier.toStdString();
}

TEST(KnownBrowsers, EdgeIsKnownByItsPrefixWithRegardToCase)
{
    EXPECT_TRUE(KnownBrowsers::isEdge(u"com.microsoft.edgemac.Nightly"_s));
    EXPECT_TRUE(KnownBrowsers::isEdge(u"com.microsoft.edgemac2"_s));
    EXPECT_FALSE(KnownBrowsers::isEdge(u"com.microsoft.edgema"_s));
    EXPECT_FALSE(KnownBrowsers::isEdge(u"com.microsoft.EdgeMac"_s));
    EXPECT_FALSE(KnownBrowsers::isEdge(u"x.com.microsoft.edgemac"_s));
}

TEST(KnownBrowsers, TheTablesMayBeAskedByManyThreadsAtOnce)
{
    std::vector<std::thread> threads;
    std::vector<qsizetype> sizes(8, 0);
    for (qsizetype &size : sizes)
        threads.emplace_back([&size] { size = KnownBrowsers::all().size(); });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(sizes, std::vector<qsizetype>(8, 38));
}

} // namespace
} // namespace vantrel
