#pragma once

#include "VantrelKit/Safari/SafariLanguage.h"

#include <QCoroTask>
#include <QFuture>
#include <QList>
#include <QUrl>

#include <optional>

namespace vantrel::Safari {

/// The languages of Safari's menus, read from Safari's files when they are first needed and kept. Main thread only.
class Languages {
public:
    /// See `SafariMenus::loadLanguages`.
    Languages(QUrl appResources, QUrl frameworkResources);

    /// Reads on another thread.
    [[nodiscard]] QCoro::Task<QList<SafariLanguage>> all();

private:
    QUrl appResources_;
    QUrl frameworkResources_;
    std::optional<QFuture<QList<SafariLanguage>>> loading_;
};

} // namespace vantrel::Safari
