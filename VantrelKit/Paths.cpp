#include "VantrelKit/Paths.h"

namespace vantrel {
namespace {

QStringView withoutTrailingSlashes(QStringView path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

QString joinedPath(const QString &folder, const QString &relative)
{
    QStringView below = withoutTrailingSlashes(relative);
    while (below.startsWith(u'/'))
        below = below.sliced(1);
    const QStringView above = withoutTrailingSlashes(folder);
    if (below.isEmpty())
        return above.toString();
    return above.endsWith(u'/') ? QString(above + below) : QString(above + u'/' + below);
}

QString lastPathComponent(const QString &path)
{
    const QStringView trimmed = withoutTrailingSlashes(path);
    return trimmed.sliced(trimmed.lastIndexOf(u'/') + 1).toString();
}

} // namespace vantrel
