#include "Vantrel/Pictures/ProfileIconCache.h"

#include "VantrelKit/PNGCoding.h"

#include <QtConcurrentRun>

namespace vantrel {

ProfileIconCache::ProfileIconCache()
{
    // Nobody waits for it, and the other processors have better things to do.
    pool_.setMaxThreadCount(1);
    pool_.setExpiryTimeout(0);
}

ProfileIconCache::~ProfileIconCache()
{
    round_.fetchAndAddRelaxed(1);
    pool_.waitForDone();
}

QImage ProfileIconCache::image(const ProfileIcon &icon, int pixels)
{
    QImage &image = entry(icon).images[pixels];
    if (image.isNull())
        image = icon.image(pixels);
    return image;
}

QByteArray ProfileIconCache::png(const ProfileIcon &icon, int pixels)
{
    QByteArray &file = entry(icon).files[pixels];
    if (file.isNull())
        file = PNGCoding::encoded(icon.image(pixels));
    return file;
}

void ProfileIconCache::prepare(const QList<ProfileIcon> &icons, Sizes sizes)
{
    const int round = round_.fetchAndAddRelaxed(1) + 1;
    QList<ProfileIcon> missing;
    for (const ProfileIcon &icon : icons) {
        const Entry &known = entry(icon);
        if ((sizes.image > 0 && !known.images.contains(sizes.image)) ||
            (sizes.png > 0 && !known.files.contains(sizes.png)))
            missing.append(icon);
    }
    const auto draw = [this, missing, sizes, round] {
        QList<Entry> drawn;
        for (const ProfileIcon &icon : missing) {
            if (round_.loadRelaxed() != round)
                break;
            Entry entry{icon, {}, {}};
            if (sizes.image > 0)
                entry.images.insert(sizes.image, icon.image(sizes.image));
            if (sizes.png > 0)
                entry.files.insert(sizes.png, PNGCoding::encoded(icon.image(sizes.png)));
            drawn.append(entry);
        }
        return drawn;
    };
    QtConcurrent::run(&pool_, draw).then(this, [this, round](const QList<Entry> &drawn) {
        // When all is drawn by now this is called at once, and who asks for icons isn't told from within.
        QMetaObject::invokeMethod(this, [this, drawn, round] { take(drawn, round); }, Qt::QueuedConnection);
    });
}

void ProfileIconCache::take(const QList<Entry> &drawn, int round)
{
    for (const Entry &each : drawn) {
        const auto known = entries_.find(each.icon.id);
        // Forgotten, changed or drawn by somebody in a hurry since.
        if (known == entries_.end() || known->icon != each.icon)
            continue;
        for (auto image = each.images.constBegin(); image != each.images.constEnd(); ++image) {
            if (!known->images.contains(image.key()))
                known->images.insert(image.key(), *image);
        }
        for (auto file = each.files.constBegin(); file != each.files.constEnd(); ++file) {
            if (!known->files.contains(file.key()))
                known->files.insert(file.key(), *file);
        }
    }
    if (round_.loadRelaxed() == round)
        Q_EMIT prepared();
}

void ProfileIconCache::keepOnly(const QSet<QString> &ids)
{
    entries_.removeIf([&ids](const auto &entry) { return !ids.contains(entry.key()); });
}

ProfileIconCache::Entry &ProfileIconCache::entry(const ProfileIcon &icon)
{
    Entry &entry = entries_[icon.id];
    if (entry.icon != icon)
        entry = {icon, {}, {}};
    return entry;
}

} // namespace vantrel
