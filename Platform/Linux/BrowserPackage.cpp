#include "Platform/Linux/BrowserPackage.h"

namespace vantrel {
namespace {

constexpr auto native = Packaging::native;
constexpr auto flatpak = Packaging::flatpak;
constexpr auto snap = Packaging::snap;

// Sources: Chromium's chrome_paths_linux.cc and channel_info_posix.cc, the vendors' Debian packages, Flathub's
// manifests, the snaps' own desktop files. Chrome, Edge and Brave install a second, undisplayed entry with the name
// that their Flatpak has too; Fedora names its native Firefox like the Flatpak. Epic and Comet don't exist for Linux;
// Flathub's com.microsoft.Edge is the beta channel. One row a line, in the catalogue's order.
// clang-format off
constexpr auto packages = std::to_array<BrowserPackage>({
    {"com.google.Chrome", native, "", {"google-chrome.desktop", "com.google.Chrome.desktop"}, {"google-chrome"}},
    {"com.google.Chrome", flatpak, "com.google.Chrome", {"com.google.Chrome.desktop"}, {"config/google-chrome"}},
    {"com.google.Chrome.beta", native, "", {"google-chrome-beta.desktop", "com.google.Chrome.beta.desktop"}, {"google-chrome-beta"}},
    {"com.google.Chrome.beta", flatpak, "com.google.ChromeBeta", {"com.google.ChromeBeta.desktop"}, {"config/google-chrome-beta"}},
    {"com.google.Chrome.dev", native, "", {"google-chrome-unstable.desktop", "com.google.Chrome.unstable.desktop"}, {"google-chrome-unstable"}},
    {"com.google.Chrome.dev", flatpak, "com.google.ChromeDev", {"com.google.ChromeDev.desktop"}, {"config/google-chrome-unstable"}},
    {"com.google.Chrome.canary", native, "", {"google-chrome-canary.desktop", "com.google.Chrome.canary.desktop"}, {"google-chrome-canary"}},
    {"com.microsoft.edgemac", native, "", {"microsoft-edge.desktop", "com.microsoft.Edge.desktop"}, {"microsoft-edge"}},
    {"com.microsoft.edgemac.Beta", native, "", {"microsoft-edge-beta.desktop"}, {"microsoft-edge-beta"}},
    {"com.microsoft.edgemac.Beta", flatpak, "com.microsoft.Edge", {"com.microsoft.Edge.desktop"}, {"config/microsoft-edge-beta", "config/microsoft-edge"}},
    {"com.microsoft.edgemac.Dev", native, "", {"microsoft-edge-dev.desktop", "com.microsoft.EdgeDev.desktop"}, {"microsoft-edge-dev"}},
    {"com.microsoft.edgemac.Dev", flatpak, "com.microsoft.EdgeDev", {"com.microsoft.EdgeDev.desktop"}, {"config/microsoft-edge-dev"}},
    {"com.microsoft.edgemac.Canary", native, "", {"microsoft-edge-canary.desktop"}, {"microsoft-edge-canary"}},
    {"com.brave.Browser", native, "", {"brave-browser.desktop", "com.brave.Browser.desktop"}, {"BraveSoftware/Brave-Browser"}},
    {"com.brave.Browser", flatpak, "com.brave.Browser", {"com.brave.Browser.desktop"}, {"config/BraveSoftware/Brave-Browser"}},
    {"com.brave.Browser", snap, "brave", {"brave_brave.desktop"}, {"current/.config/BraveSoftware/Brave-Browser"}},
    {"com.brave.Browser.beta", native, "", {"brave-browser-beta.desktop", "com.brave.Browser.beta.desktop"}, {"BraveSoftware/Brave-Browser-Beta"}},
    {"com.brave.Browser.dev", native, "", {"brave-browser-dev.desktop"}, {"BraveSoftware/Brave-Browser-Dev"}},
    {"com.brave.Browser.nightly", native, "", {"brave-browser-nightly.desktop", "com.brave.Browser.nightly.desktop"}, {"BraveSoftware/Brave-Browser-Nightly"}},
    {"com.brave.Browser.origin", native, "", {"brave-origin.desktop", "com.brave.Origin.desktop"}, {"BraveSoftware/Brave-Origin"}},
    {"com.brave.Browser.origin.beta", native, "", {"brave-origin-beta.desktop", "com.brave.Origin.beta.desktop"}, {"BraveSoftware/Brave-Origin-Beta"}},
    {"com.brave.Browser.origin.nightly", native, "", {"brave-origin-nightly.desktop"}, {"BraveSoftware/Brave-Origin-Nightly"}},
    {"com.vivaldi.Vivaldi", native, "", {"vivaldi-stable.desktop"}, {"vivaldi"}},
    {"com.vivaldi.Vivaldi", flatpak, "com.vivaldi.Vivaldi", {"com.vivaldi.Vivaldi.desktop"}, {"config/vivaldi"}},
    {"com.vivaldi.Vivaldi", snap, "vivaldi", {"vivaldi_vivaldi.desktop"}, {"current/.config/vivaldi", "common/.config/vivaldi"}},
    {"com.operasoftware.Opera", native, "", {"opera.desktop"}, {"opera"}},
    {"com.operasoftware.Opera", flatpak, "com.opera.Opera", {"com.opera.Opera.desktop"}, {"config/opera"}},
    {"com.operasoftware.Opera", snap, "opera", {"opera_opera.desktop"}, {"current/.config/opera"}},
    {"com.operasoftware.OperaGX", native, "", {"opera-gx.desktop"}, {"opera-gx"}},
    {"com.operasoftware.OperaGX", flatpak, "com.opera.opera-gx", {"com.opera.opera-gx.desktop"}, {"config/opera-gx"}},
    {"com.operasoftware.OperaGX", snap, "opera-gx", {"opera-gx_opera-gx.desktop"}, {"current/.config/opera-gx", "common/.config/opera-gx"}},
    {"org.chromium.Chromium", native, "", {"chromium.desktop", "chromium-browser.desktop"}, {"chromium"}},
    {"org.chromium.Chromium", flatpak, "org.chromium.Chromium", {"org.chromium.Chromium.desktop"}, {"config/chromium"}},
    {"org.chromium.Chromium", snap, "chromium", {"chromium_chromium.desktop"}, {"common/chromium"}},
    {"com.chromium.ungoogled", native, "", {"ungoogled-chromium.desktop"}, {"chromium", "ungoogled-chromium"}, "org.chromium.Chromium"},
    {"com.chromium.ungoogled", flatpak, "io.github.ungoogled_software.ungoogled_chromium", {"io.github.ungoogled_software.ungoogled_chromium.desktop"}, {"config/chromium"}},
    {"com.chromium.ungoogled", flatpak, "com.github.Eloston.UngoogledChromium", {"com.github.Eloston.UngoogledChromium.desktop"}, {"config/chromium"}},
    {"com.pushplaylabs.sidekick", native, "", {"sidekick-browser.desktop"}, {"Sidekick", "sidekick"}},
    {"com.yandex.desktop", native, "", {"yandex-browser.desktop"}, {"yandex-browser"}},
    {"com.yandex.desktop", native, "", {"yandex-browser-beta.desktop"}, {"yandex-browser-beta"}},
    {"com.yandex.desktop", flatpak, "ru.yandex.Browser", {"ru.yandex.Browser.desktop"}, {"config/yandex-browser"}},
    {"de.srware.iron", native, "", {"iron.desktop"}, {"iron", "chromium"}, "org.chromium.Chromium"},
    {"com.slimjet.browser", native, "", {"slimjet.desktop"}, {"slimjet"}},
    {"com.coccoc.coccocbrowser", native, "", {"coccoc-browser.desktop"}, {"coccoc-browser"}},
    {"org.chromium.Thorium", native, "", {"thorium-browser.desktop"}, {"thorium"}},
    {"com.bookry.wavebox", native, "", {"wavebox.desktop"}, {"wavebox"}},
    {"net.imput.helium", native, "", {"helium.desktop", "net.imput.helium.desktop", "helium-browser.desktop"}, {"net.imput.helium"}},
    {"net.imput.helium", flatpak, "net.imput.helium", {"net.imput.helium.desktop"}, {"config/net.imput.helium"}},
    {"org.mozilla.firefox", native, "", {"firefox.desktop", "firefox-esr.desktop", "org.mozilla.firefox.desktop"}, {}},
    {"org.mozilla.firefox", flatpak, "org.mozilla.firefox", {"org.mozilla.firefox.desktop"}, {".mozilla/firefox", "config/mozilla/firefox"}},
    {"org.mozilla.firefox", snap, "firefox", {"firefox_firefox.desktop"}, {"common/.mozilla/firefox"}},
    {"org.mozilla.firefoxbeta", native, "", {"firefox-beta.desktop"}, {}},
    {"org.mozilla.firefoxdeveloperedition", native, "", {"firefox-devedition.desktop", "firefox-developer-edition.desktop"}, {}},
    {"org.mozilla.aurora", native, "", {"firefox-aurora.desktop"}, {}},
    {"org.mozilla.nightly", native, "", {"firefox-nightly.desktop", "firefox-trunk.desktop"}, {}},
    {"app.zen-browser.zen", native, "", {"zen.desktop", "zen-browser.desktop"}, {}},
    {"app.zen-browser.zen", flatpak, "app.zen_browser.zen", {"app.zen_browser.zen.desktop"}, {".zen", "config/zen"}},
    {"app.zen-browser.zen", flatpak, "io.github.zen_browser.zen", {"io.github.zen_browser.zen.desktop"}, {".zen", "config/zen"}},
});
// clang-format on

} // namespace

QList<const BrowserPackage *> BrowserPackage::ofBrowser(const QString &bundleID)
{
    const QByteArray wanted = bundleID.toUtf8();
    QList<const BrowserPackage *> found;
    for (const BrowserPackage &package : packages) {
        if (package.bundleID == std::string_view(wanted.constData(), static_cast<size_t>(wanted.size())))
            found.append(&package);
    }
    return found;
}

} // namespace vantrel
