#include "Vantrel/Safari/Languages.h"

#include "VantrelKit/Safari/SafariMenus.h"

#include <QCoroFuture>
#include <QtConcurrentRun>

namespace vantrel::Safari {

Languages::Languages(QUrl appResources, QUrl frameworkResources)
    : appResources_(std::move(appResources)),
      frameworkResources_(std::move(frameworkResources))
{
}

QCoro::Task<QList<SafariLanguage>> Languages::all()
{
    if (!loading_) {
        loading_ = QtConcurrent::run([app = appResources_, framework = frameworkResources_] {
            return SafariMenus::loadLanguages(app, framework);
        });
    }
    const QFuture<QList<SafariLanguage>> loading = *loading_;
    co_await loading;
    co_return loading.result();
}

} // namespace vantrel::Safari
