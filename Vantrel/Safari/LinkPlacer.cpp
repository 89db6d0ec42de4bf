#include "Vantrel/Safari/LinkPlacer.h"

#include "Vantrel/Safari/Scripting.h"
#include "VantrelKit/WebLinks.h"

using namespace Qt::StringLiterals;

namespace vantrel::Safari {

LinkPlacer::LinkPlacer(LogSink &log) : log_(scriptingErrors(log)) {}

QCoro::Task<> LinkPlacer::place(QList<QUrl> links, std::shared_ptr<SafariApplication> application,
                                qint64 windowID) const
{
    const auto urls = co_await application->tabURLs(windowID);
    if (!urls) {
        log_.error("Safari window's tabs unreadable"_L1);
        co_return;
    }
    // Once: a tab that loads a link has no address yet, and would look as if it were free.
    bool hasFreeTab = isBlank(*urls);
    for (const QUrl &link : std::as_const(links)) {
        std::optional<qsizetype> tab = 0;
        if (!std::exchange(hasFreeTab, false))
            tab = co_await application->addTab(windowID);
        if (!tab) {
            log_.error("Safari tab not created"_L1);
            continue;
        }
        co_await application->setURL(windowID, *tab, linkText(link));
        co_await application->setCurrentTab(windowID, *tab);
    }
}

bool LinkPlacer::isBlank(const QStringList &tabURLs)
{
    return tabURLs.size() == 1 && (tabURLs.constFirst().isEmpty() || tabURLs.constFirst() == "favorites://"_L1);
}

} // namespace vantrel::Safari
