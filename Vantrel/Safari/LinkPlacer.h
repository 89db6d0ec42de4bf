#pragma once

#include "Platform/LogChannel.h"
#include "Platform/SafariApplication.h"

#include <QUrl>

#include <memory>

namespace vantrel::Safari {

/// Opens links in a window. Main thread only.
class LinkPlacer {
public:
    /// The sink must outlive it.
    explicit LinkPlacer(LogSink &log);

    /// Each link gets a tab of its own, the last one ends up in front. The first takes the place of the start page of a
    /// window that shows nothing else. What goes wrong is logged.
    [[nodiscard]] QCoro::Task<> place(QList<QUrl> links, std::shared_ptr<SafariApplication> application,
                                      qint64 windowID) const;

    /// Whether a window with these tabs shows nothing but the start page.
    [[nodiscard]] static bool isBlank(const QStringList &tabURLs);

private:
    LogChannel log_;
};

} // namespace vantrel::Safari
