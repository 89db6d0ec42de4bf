"""The browsers that Vantrel must know on Linux, and every place where each keeps its profiles.

The table was typed from what the browsers' packages install, not from the program's own table: where the two disagree,
one of them is wrong.
"""

from collections.abc import Iterator
from dataclasses import dataclass, field
from enum import Enum


class Packaging(Enum):
    NATIVE = "native"
    FLATPAK = "flatpak"
    SNAP = "snap"


@dataclass(frozen=True)
class Variant:
    """One way to have a browser: its desktop entry's id (without ".desktop") and its data folder below the home."""

    packaging: Packaging
    desktop_id: str
    data_folder: str

    @property
    def application_id(self) -> str:
        """A Flatpak's application id is its desktop entry's id."""
        return self.desktop_id

    @property
    def snap_name(self) -> str:
        return self.desktop_id.split("_")[0]

    def __str__(self) -> str:
        return f"{self.packaging.value} {self.desktop_id} {self.data_folder}"


Folders = dict[str, tuple[str, ...]]


@dataclass(frozen=True)
class Row:
    """One browser; each table maps a desktop entry's id to the data folders that may belong to it."""

    bundle_id: str
    family: str
    name: str
    program: str
    native: Folders = field(default_factory=dict)
    flatpak: Folders = field(default_factory=dict)
    snap: Folders = field(default_factory=dict)

    @property
    def private_name(self) -> str:
        if self.family == "firefox":
            return "Private Window"
        return "InPrivate Window" if self.bundle_id.startswith("com.microsoft.edgemac") else "Incognito Window"

    @property
    def private_switch(self) -> str:
        if self.family == "firefox":
            return "--private-window"
        return "--inprivate" if self.bundle_id.startswith("com.microsoft.edgemac") else "--incognito"

    def variants(self) -> Iterator[Variant]:
        for packaging in Packaging:
            table: Folders = getattr(self, packaging.value)
            for desktop_id, folders in table.items():
                for folder in folders:
                    yield Variant(packaging, desktop_id, folder)

    def variant(self, packaging: Packaging) -> Variant:
        """The first variant of this packaging."""
        return next(variant for variant in self.variants() if variant.packaging is packaging)


def _config(*names: str) -> tuple[str, ...]:
    return tuple(f".config/{name}" for name in names)


def _sandboxed(*application_ids: str, folders: tuple[str, ...]) -> Folders:
    return {each: tuple(f".var/app/{each}/{folder}" for folder in folders) for each in application_ids}


def _chromium(
    bundle_id: str,
    name: str,
    program: str,
    native: dict[str, str | tuple[str, ...]],
    flatpak: dict[str, str | tuple[str, ...]] | None = None,
    snap: Folders | None = None,
) -> Row:
    """Native and Flatpak folders are given below the folder of settings, Snap folders below the home."""
    flatpaks: Folders = {}
    for each, folders in (flatpak or {}).items():
        flatpaks |= _sandboxed(each, folders=tuple(f"config/{folder}" for folder in _tuple(folders)))
    natives = {each: _config(*_tuple(folders)) for each, folders in native.items()}
    return Row(bundle_id, "chromium", name, program, natives, flatpaks, snap or {})


def _tuple(names: str | tuple[str, ...]) -> tuple[str, ...]:
    return (names,) if isinstance(names, str) else names


def _channel(bundle_id: str, name: str, program: str, folder: str, *desktop_ids: str) -> Row:
    """A browser that exists as a native package only."""
    return _chromium(bundle_id, name, program, {each: folder for each in desktop_ids})


CHROMIUM_ROWS: tuple[Row, ...] = (
    _chromium(
        "com.google.Chrome", "Google Chrome", "google-chrome-stable",
        {"google-chrome": "google-chrome", "com.google.Chrome": "google-chrome"},
        {"com.google.Chrome": "google-chrome"},
    ),
    _chromium(
        "com.google.Chrome.beta", "Google Chrome (beta)", "google-chrome-beta",
        {"google-chrome-beta": "google-chrome-beta", "com.google.Chrome.beta": "google-chrome-beta"},
        {"com.google.ChromeBeta": "google-chrome-beta"},
    ),
    _chromium(
        "com.google.Chrome.dev", "Google Chrome (unstable)", "google-chrome-unstable",
        {"google-chrome-unstable": "google-chrome-unstable", "com.google.Chrome.unstable": "google-chrome-unstable"},
        {"com.google.ChromeDev": "google-chrome-unstable"},
    ),
    _channel(
        "com.google.Chrome.canary", "Google Chrome (canary)", "google-chrome-canary",
        "google-chrome-canary", "google-chrome-canary", "com.google.Chrome.canary",
    ),
    _channel(
        "com.microsoft.edgemac", "Microsoft Edge", "microsoft-edge-stable",
        "microsoft-edge", "microsoft-edge", "com.microsoft.Edge",
    ),
    _chromium(
        "com.microsoft.edgemac.Beta", "Microsoft Edge (beta)", "microsoft-edge-beta",
        {"microsoft-edge-beta": "microsoft-edge-beta"},
        {"com.microsoft.Edge": ("microsoft-edge-beta", "microsoft-edge")},
    ),
    _chromium(
        "com.microsoft.edgemac.Dev", "Microsoft Edge (dev)", "microsoft-edge-dev",
        {"microsoft-edge-dev": "microsoft-edge-dev", "com.microsoft.EdgeDev": "microsoft-edge-dev"},
        {"com.microsoft.EdgeDev": "microsoft-edge-dev"},
    ),
    _channel(
        "com.microsoft.edgemac.Canary", "Microsoft Edge (canary)", "microsoft-edge-canary",
        "microsoft-edge-canary", "microsoft-edge-canary",
    ),
    _chromium(
        "com.brave.Browser", "Brave Web Browser", "brave-browser-stable",
        {"brave-browser": "BraveSoftware/Brave-Browser", "com.brave.Browser": "BraveSoftware/Brave-Browser"},
        {"com.brave.Browser": "BraveSoftware/Brave-Browser"},
        {"brave_brave": ("snap/brave/current/.config/BraveSoftware/Brave-Browser",)},
    ),
    _channel(
        "com.brave.Browser.beta", "Brave Web Browser (beta)", "brave-browser-beta",
        "BraveSoftware/Brave-Browser-Beta", "brave-browser-beta", "com.brave.Browser.beta",
    ),
    _channel(
        "com.brave.Browser.dev", "Brave Web Browser (dev)", "brave-browser-dev",
        "BraveSoftware/Brave-Browser-Dev", "brave-browser-dev",
    ),
    _channel(
        "com.brave.Browser.nightly", "Brave Web Browser (nightly)", "brave-browser-nightly",
        "BraveSoftware/Brave-Browser-Nightly", "brave-browser-nightly", "com.brave.Browser.nightly",
    ),
    _channel(
        "com.brave.Browser.origin", "Brave Origin", "brave-origin",
        "BraveSoftware/Brave-Origin", "brave-origin", "com.brave.Origin",
    ),
    _channel(
        "com.brave.Browser.origin.beta", "Brave Origin (beta)", "brave-origin-beta",
        "BraveSoftware/Brave-Origin-Beta", "brave-origin-beta", "com.brave.Origin.beta",
    ),
    _channel(
        "com.brave.Browser.origin.nightly", "Brave Origin (nightly)", "brave-origin-nightly",
        "BraveSoftware/Brave-Origin-Nightly", "brave-origin-nightly",
    ),
    _chromium(
        "com.vivaldi.Vivaldi", "Vivaldi", "vivaldi-stable",
        {"vivaldi-stable": "vivaldi"},
        {"com.vivaldi.Vivaldi": "vivaldi"},
        {"vivaldi_vivaldi": ("snap/vivaldi/current/.config/vivaldi", "snap/vivaldi/common/.config/vivaldi")},
    ),
    _chromium(
        "com.operasoftware.Opera", "Opera", "opera",
        {"opera": "opera"},
        {"com.opera.Opera": "opera"},
        {"opera_opera": ("snap/opera/current/.config/opera",)},
    ),
    _chromium(
        "com.operasoftware.OperaGX", "Opera GX", "opera-gx",
        {"opera-gx": "opera-gx"},
        {"com.opera.opera-gx": "opera-gx"},
        {"opera-gx_opera-gx": ("snap/opera-gx/current/.config/opera-gx", "snap/opera-gx/common/.config/opera-gx")},
    ),
    _chromium(
        "org.chromium.Chromium", "Chromium", "chromium",
        {"chromium": "chromium", "chromium-browser": "chromium"},
        {"org.chromium.Chromium": "chromium"},
        {"chromium_chromium": ("snap/chromium/common/chromium",)},
    ),
    _chromium(
        "com.chromium.ungoogled", "Ungoogled Chromium", "ungoogled-chromium",
        {"ungoogled-chromium": ("chromium", "ungoogled-chromium")},
        {
            "io.github.ungoogled_software.ungoogled_chromium": "chromium",
            "com.github.Eloston.UngoogledChromium": "chromium",
        },
    ),
    _chromium(
        "com.pushplaylabs.sidekick", "Sidekick", "sidekick-browser-stable",
        {"sidekick-browser": ("Sidekick", "sidekick")},
    ),
    _chromium(
        "com.yandex.desktop", "Yandex Browser", "yandex-browser-stable",
        {"yandex-browser": "yandex-browser", "yandex-browser-beta": "yandex-browser-beta"},
        {"ru.yandex.Browser": "yandex-browser"},
    ),
    _chromium("de.srware.iron", "SRWare Iron", "chrome-wrapper", {"iron": ("iron", "chromium")}),
    _channel("com.slimjet.browser", "Slimjet", "flashpeak-slimjet", "slimjet", "slimjet"),
    _channel(
        "com.coccoc.coccocbrowser", "Cốc Cốc", "coccoc-browser-stable",
        "coccoc-browser", "coccoc-browser",
    ),
    _channel("com.epic.EpicPrivacyBrowser", "Epic", "epic", "Epic"),
    _channel("org.chromium.Thorium", "Thorium Browser", "thorium-browser", "thorium", "thorium-browser"),
    _channel("com.bookry.wavebox", "Wavebox", "wavebox-launcher", "wavebox", "wavebox"),
    _channel("ai.perplexity.comet", "Comet", "comet", "comet"),
    _chromium(
        "net.imput.helium", "Helium", "helium",
        {each: "net.imput.helium" for each in ("helium", "net.imput.helium", "helium-browser")},
        {"net.imput.helium": "net.imput.helium"},
    ),
)

MOZILLA_ROOTS = (".mozilla/firefox", ".config/mozilla/firefox")
ZEN_ROOTS = (".zen", ".config/zen")


def _firefox(bundle_id: str, name: str, program: str, *desktop_ids: str) -> Row:
    """A native edition of Firefox; all editions keep their profiles in the same two places."""
    return Row(bundle_id, "firefox", name, program, {each: MOZILLA_ROOTS for each in desktop_ids})


FIREFOX_ROWS: tuple[Row, ...] = (
    Row(
        "org.mozilla.firefox", "firefox", "Firefox", "firefox",
        {each: MOZILLA_ROOTS for each in ("firefox", "firefox-esr", "org.mozilla.firefox")},
        _sandboxed("org.mozilla.firefox", folders=(".mozilla/firefox", "config/mozilla/firefox")),
        {"firefox_firefox": ("snap/firefox/common/.mozilla/firefox",)},
    ),
    _firefox("org.mozilla.firefoxbeta", "Firefox Beta", "firefox-beta", "firefox-beta"),
    _firefox(
        "org.mozilla.firefoxdeveloperedition", "Firefox Developer Edition", "firefox-devedition",
        "firefox-devedition", "firefox-developer-edition",
    ),
    _firefox("org.mozilla.aurora", "Firefox Aurora", "firefox-aurora", "firefox-aurora"),
    _firefox("org.mozilla.nightly", "Firefox Nightly", "firefox-nightly", "firefox-nightly", "firefox-trunk"),
    Row(
        "app.zen-browser.zen", "firefox", "Zen Browser", "zen",
        {each: ZEN_ROOTS for each in ("zen", "zen-browser")},
        _sandboxed("app.zen_browser.zen", "io.github.zen_browser.zen", folders=(".zen", "config/zen")),
    ),
)

ROWS = CHROMIUM_ROWS + FIREFOX_ROWS

ABSENT_ON_LINUX = frozenset({"com.epic.EpicPrivacyBrowser", "ai.perplexity.comet"})


def row(bundle_id: str) -> Row:
    return next(each for each in ROWS if each.bundle_id == bundle_id)
