#include "Platform/Linux/BrowserPackage.h"

#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/KnownBrowsers.h"

#include <QMap>

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Row {
    const char *bundleID;
    /// Each "PACKAGING[ ID]: ENTRIES: FOLDERS", several separated by blanks; entries without their ".desktop".
    std::vector<const char *> packages;
};

const std::vector<Row> &rows()
{
    static const std::vector<Row> table{
        {"com.google.Chrome",
         {"native: google-chrome com.google.Chrome: google-chrome",
          "flatpak com.google.Chrome: com.google.Chrome: config/google-chrome"}},
        {"com.google.Chrome.beta",
         {"native: google-chrome-beta com.google.Chrome.beta: google-chrome-beta",
          "flatpak com.google.ChromeBeta: com.google.ChromeBeta: config/google-chrome-beta"}},
        {"com.google.Chrome.dev",
         {"native: google-chrome-unstable com.google.Chrome.unstable: google-chrome-unstable",
          "flatpak com.google.ChromeDev: com.google.ChromeDev: config/google-chrome-unstable"}},
        {"com.google.Chrome.canary", {"native: google-chrome-canary com.google.Chrome.canary: google-chrome-canary"}},
        {"com.microsoft.edgemac", {"native: microsoft-edge com.microsoft.Edge: microsoft-edge"}},
        {"com.microsoft.edgemac.Beta",
         {"native: microsoft-edge-beta: microsoft-edge-beta",
          "flatpak com.microsoft.Edge: com.microsoft.Edge: config/microsoft-edge-beta config/microsoft-edge"}},
        {"com.microsoft.edgemac.Dev",
         {"native: microsoft-edge-dev com.microsoft.EdgeDev: microsoft-edge-dev",
          "flatpak com.microsoft.EdgeDev: com.microsoft.EdgeDev: config/microsoft-edge-dev"}},
        {"com.microsoft.edgemac.Canary", {"native: microsoft-edge-canary: microsoft-edge-canary"}},
        {"com.brave.Browser",
         {"native: brave-browser com.brave.Browser: BraveSoftware/Brave-Browser",
          "flatpak com.brave.Browser: com.brave.Browser: config/BraveSoftware/Brave-Browser",
          "snap brave: brave_brave: current/.config/BraveSoftware/Brave-Browser"}},
        {"com.brave.Browser.beta",
         {"native: brave-browser-beta com.brave.Browser.beta: BraveSoftware/Brave-Browser-Beta"}},
        {"com.brave.Browser.dev", {"native: brave-browser-dev: BraveSoftware/Brave-Browser-Dev"}},
        {"com.brave.Browser.nightly",
         {"native: brave-browser-nightly com.brave.Browser.nightly: BraveSoftware/Brave-Browser-Nightly"}},
        {"com.brave.Browser.origin", {"native: brave-origin com.brave.Origin: BraveSoftware/Brave-Origin"}},
        {"com.brave.Browser.origin.beta",
         {"native: brave-origin-beta com.brave.Origin.beta: BraveSoftware/Brave-Origin-Beta"}},
        {"com.brave.Browser.origin.nightly", {"native: brave-origin-nightly: BraveSoftware/Brave-Origin-Nightly"}},
        {"com.vivaldi.Vivaldi",
         {"native: vivaldi-stable: vivaldi", "flatpak com.vivaldi.Vivaldi: com.vivaldi.Vivaldi: config/vivaldi",
          "snap vivaldi: vivaldi_vivaldi: current/.config/vivaldi common/.config/vivaldi"}},
        {"com.operasoftware.Opera",
         {"native: opera: opera", "flatpak com.opera.Opera: com.opera.Opera: config/opera",
          "snap opera: opera_opera: current/.config/opera"}},
        {"com.operasoftware.OperaGX",
         {"native: opera-gx: opera-gx", "flatpak com.opera.opera-gx: com.opera.opera-gx: config/opera-gx",
          "snap opera-gx: opera-gx_opera-gx: current/.config/opera-gx common/.config/opera-gx"}},
        {"org.chromium.Chromium",
         {"native: chromium chromium-browser: chromium",
          "flatpak org.chromium.Chromium: org.chromium.Chromium: config/chromium",
          "snap chromium: chromium_chromium: common/chromium"}},
        {"com.chromium.ungoogled",
         {"native: ungoogled-chromium: chromium ungoogled-chromium",
          "flatpak io.github.ungoogled_software.ungoogled_chromium: "
          "io.github.ungoogled_software.ungoogled_chromium: config/chromium",
          "flatpak com.github.Eloston.UngoogledChromium: com.github.Eloston.UngoogledChromium: config/chromium"}},
        {"com.pushplaylabs.sidekick", {"native: sidekick-browser: Sidekick sidekick"}},
        {"com.yandex.desktop",
         {"native: yandex-browser: yandex-browser", "native: yandex-browser-beta: yandex-browser-beta",
          "flatpak ru.yandex.Browser: ru.yandex.Browser: config/yandex-browser"}},
        {"de.srware.iron", {"native: iron: iron chromium"}},
        {"com.slimjet.browser", {"native: slimjet: slimjet"}},
        {"com.coccoc.coccocbrowser", {"native: coccoc-browser: coccoc-browser"}},
        {"com.epic.EpicPrivacyBrowser", {}},
        {"org.chromium.Thorium", {"native: thorium-browser: thorium"}},
        {"com.bookry.wavebox", {"native: wavebox: wavebox"}},
        {"ai.perplexity.comet", {}},
        {"net.imput.helium",
         {"native: helium net.imput.helium helium-browser: net.imput.helium",
          "flatpak net.imput.helium: net.imput.helium: config/net.imput.helium"}},
        {"org.mozilla.firefox",
         {"native: firefox firefox-esr org.mozilla.firefox: ",
          "flatpak org.mozilla.firefox: org.mozilla.firefox: .mozilla/firefox config/mozilla/firefox",
          "snap firefox: firefox_firefox: common/.mozilla/firefox"}},
        {"org.mozilla.firefoxbeta", {"native: firefox-beta: "}},
        {"org.mozilla.firefoxdeveloperedition", {"native: firefox-devedition firefox-developer-edition: "}},
        {"org.mozilla.aurora", {"native: firefox-aurora: "}},
        {"org.mozilla.nightly", {"native: firefox-nightly firefox-trunk: "}},
        {"app.zen-browser.zen",
         {"native: zen zen-browser: ", "flatpak app.zen_browser.zen: app.zen_browser.zen: .zen config/zen",
          "flatpak io.github.zen_browser.zen: io.github.zen_browser.zen: .zen config/zen"}},
        {"com.apple.Safari", {}},
        {"com.apple.SafariTechnologyPreview", {}},
    };
    return table;
}

template <typename Views>
QStringList texts(const Views &views)
{
    QStringList result;
    for (const std::string_view view : views) {
        if (!view.empty())
            result.append(text(view));
    }
    return result;
}

QString packagingName(Packaging packaging)
{
    switch (packaging) {
    case Packaging::native: return u"native"_s;
    case Packaging::flatpak: return u"flatpak"_s;
    case Packaging::snap: return u"snap"_s;
    }
    Q_UNREACHABLE();
}

/// A package in the form of the table.
QString described(const BrowserPackage &package)
{
    const QString id = package.sandboxID.empty() ? QString() : QString(u' ' + text(package.sandboxID));
    const QString entries = texts(package.entries).replaceInStrings(u".desktop"_s, QString()).join(u' ');
    return packagingName(package.packaging) + id + u": "_s + entries + u": "_s + texts(package.dataFolders).join(u' ');
}

TEST(BrowserPackage, EveryBrowserHasThePackagesOfTheTable)
{
    for (const auto &[bundleID, packages] : rows()) {
        QStringList expected;
        for (const char *package : packages)
            expected.append(QString::fromLatin1(package));
        QStringList found;
        for (const BrowserPackage *package : BrowserPackage::ofBrowser(QString::fromLatin1(bundleID))) {
            EXPECT_EQ(package->bundleID, bundleID);
            found.append(described(*package));
        }
        EXPECT_EQ(found, expected) << bundleID;
    }
}

TEST(BrowserPackage, TheTableHasEveryKnownBrowser)
{
    QStringList known;
    for (const Row &row : rows())
        known.append(QString::fromLatin1(row.bundleID));
    QStringList all = KnownBrowsers::all();
    known.sort();
    all.sort();
    EXPECT_EQ(known, all);
}

TEST(BrowserPackage, BrowsersAreToldApartExactly)
{
    for (const QString &bundleID : {QString(), u"com.google.chrome"_s, u"com.google"_s, u"com.google.Chrome "_s,
                                    u"com.google.Chromes"_s, test::unknownBrowser, u"com.brave.Browser.orig"_s})
        EXPECT_TRUE(BrowserPackage::ofBrowser(bundleID).isEmpty()) << bundleID.toStdString();
}

TEST(BrowserPackage, NoEntryBelongsToTwoPackagesOfTheSamePackaging)
{
    QMap<QString, QString> owners;
    for (const QString &bundleID : KnownBrowsers::all()) {
        for (const BrowserPackage *package : BrowserPackage::ofBrowser(bundleID)) {
            for (const QString &entry : texts(package->entries)) {
                const QString key = packagingName(package->packaging) + u' ' + entry;
                EXPECT_FALSE(owners.contains(key)) << key.toStdString() << " of " << bundleID.toStdString()
                                                   << " and of " << owners.value(key).toStdString();
                owners.insert(key, bundleID);
            }
        }
    }
    EXPECT_GT(owners.size(), 60);
}

TEST(BrowserPackage, PackagesAreOrderedNativeFlatpakSnap)
{
    for (const QString &bundleID : KnownBrowsers::all()) {
        const auto packages = BrowserPackage::ofBrowser(bundleID);
        EXPECT_TRUE(std::ranges::is_sorted(packages, {}, &BrowserPackage::packaging)) << bundleID.toStdString();
    }
}

TEST(BrowserPackage, OnlySandboxedPackagesHaveAnIDAndEveryPackageAnEntry)
{
    for (const QString &bundleID : KnownBrowsers::all()) {
        const bool isFirefox = KnownBrowsers::family(bundleID) == BrowserFamily::firefox;
        for (const BrowserPackage *package : BrowserPackage::ofBrowser(bundleID)) {
            const bool isNative = package->packaging == Packaging::native;
            EXPECT_EQ(package->sandboxID.empty(), isNative) << bundleID.toStdString();
            EXPECT_EQ(package->dataFolders.front().empty(), isNative && isFirefox) << bundleID.toStdString();
            for (const QString &entry : texts(package->entries))
                EXPECT_TRUE(entry.endsWith(".desktop"_L1) && !entry.contains(u'/')) << entry.toStdString();
            EXPECT_FALSE(package->entries.front().empty()) << bundleID.toStdString();
        }
    }
}

} // namespace
} // namespace vantrel
