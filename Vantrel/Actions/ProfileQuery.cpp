#include "Vantrel/Actions/ProfileQuery.h"

#include "Vantrel/Actions/FoldedText.h"

#include <QStringMatcher>

namespace vantrel {

QList<ProfileEntity> ProfileQuery::entities(const QStringList &ids) const
{
    QList<ProfileEntity> found;
    for (const QString &id : ids) {
        if (const ProfileTitles::Row *row = titles_.find(id))
            found.append(row->entity);
    }
    return found;
}

QList<ProfileEntity> ProfileQuery::suggestedEntities() const
{
    QList<ProfileEntity> suggested;
    for (const ProfileTitles::Row &row : titles_.rows()) {
        if (row.isInstalled)
            suggested.append(row.entity);
    }
    return suggested;
}

QList<ProfileEntity> ProfileQuery::entitiesMatching(const QString &text) const
{
    const QString folded = foldedText(text);
    if (folded.isEmpty())
        return {};
    const QStringMatcher matcher(folded);
    QList<ProfileEntity> matching;
    for (const ProfileTitles::Row &row : titles_.rows()) {
        if (row.isInstalled && matcher.indexIn(row.foldedTitle) >= 0)
            matching.append(row.entity);
    }
    return matching;
}

} // namespace vantrel
