#include "Vantrel/Actions/ProfileTitles.h"

#include "Vantrel/Actions/FoldedText.h"

namespace vantrel {

ProfileTitles::ProfileTitles(const ProfileStore &store) : store_(store)
{
    connect(&store, &ProfileStore::changed, this, [this] {
        if (!std::exchange(isStale_, true))
            QMetaObject::invokeMethod(this, &ProfileTitles::takeTurn, Qt::QueuedConnection);
    });
    isStale_ = true;
    refresh();
    isUnannounced_ = false;
}

const QList<ProfileTitles::Row> &ProfileTitles::rows()
{
    refresh();
    return rows_;
}

const ProfileTitles::Row *ProfileTitles::find(const QString &id)
{
    refresh();
    return knownRow(id);
}

const ProfileTitles::Row *ProfileTitles::knownRow(const QString &id) const
{
    const auto position = positions_.constFind(id);
    return position == positions_.constEnd() ? nullptr : &rows_.at(*position);
}

void ProfileTitles::refresh()
{
    if (!std::exchange(isStale_, false))
        return;
    QList<Row> rows = currentRows();
    if (rows == rows_)
        return;
    rows_ = std::move(rows);
    isUnannounced_ = true;
    positions_.clear();
    // From the end: of two rows with one id the first counts.
    for (qsizetype position = rows_.size() - 1; position >= 0; --position)
        positions_.insert(rows_.at(position).entity.id, position);
}

void ProfileTitles::takeTurn()
{
    refresh();
    if (std::exchange(isUnannounced_, false))
        Q_EMIT changed();
}

QList<ProfileTitles::Row> ProfileTitles::currentRows() const
{
    const ProfileCatalogue &catalogue = store_.catalogue();
    QHash<QString, QList<const Profile *>> byBrowser;
    for (const Profile &profile : catalogue.profiles)
        byBrowser[profile.browserBundleID].append(&profile);
    QList<Row> rows;
    rows.reserve(catalogue.profiles.size());
    for (const Browser &browser : catalogue.browsers) {
        for (const Profile *profile : byBrowser.take(browser.bundleID))
            rows.append(currentRow(*profile));
    }
    for (const Profile &profile : catalogue.profiles) {
        if (byBrowser.contains(profile.browserBundleID))
            rows.append(currentRow(profile));
    }
    return rows;
}

ProfileTitles::Row ProfileTitles::currentRow(const Profile &profile) const
{
    const ProfileCatalogue &catalogue = store_.catalogue();
    const Browser *browser = catalogue.browser(profile);
    const QString name = catalogue.displayName(profile);
    Row row{.profile = profile,
            .entity = {.id = profile.id(),
                       .title = name,
                       .browser = browser == nullptr ? profile.browserBundleID : browser->name,
                       .avatar = ProfileIcon::of(profile, name),
                       .displayRepresentation = catalogue.title(profile)},
            .isHidden = catalogue.isHidden(profile),
            .isInstalled = browser != nullptr};
    // Most changes are about one profile, and folding takes longer than all the rest.
    const Row *known = knownRow(row.entity.id);
    const bool isNamedAsBefore = known != nullptr && known->entity.title == name &&
                                 known->entity.displayRepresentation == row.entity.displayRepresentation;
    row.foldedName = isNamedAsBefore ? known->foldedName : foldedText(name);
    row.foldedTitle = isNamedAsBefore ? known->foldedTitle : foldedText(row.entity.displayRepresentation);
    return row;
}

} // namespace vantrel
