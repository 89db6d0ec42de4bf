#include "VantrelKit/WebLinks.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool isOpenable(const QUrl &link)
{
    const QString scheme = link.scheme().toLower();
    return scheme == "http"_L1 || scheme == "https"_L1 || scheme == "file"_L1;
}

} // namespace

QList<QUrl> openableLinks(const QList<QUrl> &links)
{
    QList<QUrl> openable;
    std::ranges::copy_if(links, std::back_inserter(openable), isOpenable);
    return openable;
}

QString linkText(const QUrl &link)
{
    return QString::fromLatin1(link.toEncoded());
}

} // namespace vantrel
