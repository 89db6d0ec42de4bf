#include "Platform/BundleApplication.h"

#include <QFileInfo>

namespace vantrel {

Application bundleApplication(const QUrl &bundle)
{
    const QUrl url = bundle.adjusted(QUrl::StripTrailingSlash);
    return {url, QFileInfo(url.toLocalFile()).completeBaseName()};
}

} // namespace vantrel
