#include "Vantrel/Pictures/ProfileInitial.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace vantrel {

QString profileInitial(const QString &displayName)
{
    const QString name = displayName.trimmed();
    if (name.isEmpty())
        return u"?"_s;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, name);
    return name.first(finder.toNextBoundary()).toUpper();
}

} // namespace vantrel
