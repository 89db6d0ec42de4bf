#include "VantrelKit/Browser.h"

#include "VantrelKit/KnownBrowsers.h"

#include <QCollator>
#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Browser)
};

QCollator nameCollator()
{
    // Without a language in the environment Qt compares code units and leaves numbers alone: English rules serve
    // better.
    const QLocale locale;
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

} // namespace

size_t qHash(const Browser &browser, size_t seed) noexcept
{
    return qHashMulti(seed, browser.bundleID, browser.name, browser.url, std::to_underlying(browser.family));
}

QString privateWindowName(const QString &bundleID)
{
    const auto family = KnownBrowsers::family(bundleID);
    if (family == BrowserFamily::safari || family == BrowserFamily::firefox) {
        //: A Safari or Firefox private browsing window, in the profiles list and the menu.
        return Texts::tr("Private Window");
    }
    if (KnownBrowsers::isEdge(bundleID)) {
        //: A Microsoft Edge private window, in the profiles list and the menu. Edge's own name for it.
        return Texts::tr("InPrivate Window");
    }
    //: A Chrome-family private window, in the profiles list and the menu. Chrome's own name for it.
    return Texts::tr("Incognito Window");
}

QString applicationName(const QUrl &application)
{
    // Without the slash that a bundle, being a folder, may carry.
    return QFileInfo(application.adjusted(QUrl::StripTrailingSlash).path()).completeBaseName();
}

QList<Browser> sortedForDisplay(QList<Browser> browsers)
{
    if (browsers.size() < 2)
        return browsers;
    const QCollator collator = nameCollator();
    std::ranges::stable_sort(browsers, [&collator](const Browser &left, const Browser &right) {
        const bool leftIsSafari = left.family == BrowserFamily::safari;
        const bool rightIsSafari = right.family == BrowserFamily::safari;
        if (leftIsSafari != rightIsSafari)
            return leftIsSafari;
        return collator.compare(left.name, right.name) < 0;
    });
    return browsers;
}

} // namespace vantrel
