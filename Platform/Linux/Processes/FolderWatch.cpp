#include "Platform/Linux/Processes/FolderWatch.h"

#include <QFile>
#include <QFileInfo>

#include <sys/inotify.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr unsigned watchedEvents = IN_CREATE | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

bool isFolder(const QString &path)
{
    return QFileInfo(path).isDir();
}

/// Empty above the root.
QString parentOf(const QString &path)
{
    return path == QChar(u'/') || !path.contains(u'/') ? QString() : QFileInfo(path).path();
}

/// The first folder on the way down from one folder to another one.
QString stepTowards(const QString &folder, const QString &from)
{
    QString step = folder;
    while (parentOf(step) != from && !parentOf(step).isEmpty())
        step = parentOf(step);
    return step;
}

} // namespace

void FolderWatch::follow(const QString &folder)
{
    if (places_.contains(folder))
        return;
    open();
    if (inotify_.isOpen())
        place(folder);
}

void FolderWatch::open()
{
    if (inotify_.isOpen())
        return;
    inotify_ = OwnedDescriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    if (!inotify_.isOpen()) {
        log_.error("Folders can't be watched: %{public}s"_L1, {qt_error_string(errno)});
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(inotify_.number(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { read(); });
}

void FolderWatch::place(const QString &folder)
{
    bool isSettled = false;
    while (!isSettled) {
        const Place former = places_.value(folder);
        const Place now = nearestWatch(folder);
        places_.insert(folder, now);
        release(former.watch);
        // Once more when the next folder on the way has come while the one above it began to be watched.
        isSettled = now.watch < 0 || now.path == folder || !isFolder(stepTowards(folder, now.path));
    }
}

FolderWatch::Place FolderWatch::nearestWatch(const QString &folder) const
{
    for (QString path = folder; !path.isEmpty(); path = parentOf(path)) {
        const int watch = inotify_add_watch(inotify_.number(), QFile::encodeName(path).constData(), watchedEvents);
        if (watch >= 0)
            return {watch, path};
        if (errno != ENOENT && errno != ENOTDIR) {
            log_.error("%{private}s can't be watched: %{public}s"_L1, {path, qt_error_string(errno)});
            return {};
        }
    }
    return {};
}

void FolderWatch::release(int watch)
{
    const auto isUsed = [watch](const Place &place) { return place.watch == watch; };
    // The system may have dropped it already, with what was watched.
    if (watch >= 0 && std::ranges::none_of(places_, isUsed))
        inotify_rm_watch(inotify_.number(), watch);
}

void FolderWatch::read()
{
    alignas(inotify_event) std::array<char, 16384> block{};
    ssize_t count = 0;
    while ((count = ::read(inotify_.number(), block.data(), block.size())) > 0) {
        for (size_t offset = 0; offset < static_cast<size_t>(count);) {
            inotify_event event{};
            std::memcpy(&event, block.data() + offset, sizeof event);
            const char *name = block.data() + offset + sizeof event;
            offset += sizeof event + event.len;
            if (event.mask & IN_Q_OVERFLOW)
                takeLoss();
            else
                take(event.wd, event.mask, event.len ? QByteArrayView(name) : QByteArrayView());
        }
    }
}

void FolderWatch::take(int watch, unsigned mask, QByteArrayView name)
{
    const bool isCreation = (mask & (IN_CREATE | IN_MOVED_TO)) != 0;
    QStringList folders;
    for (auto place = places_.constBegin(); place != places_.constEnd(); ++place) {
        if (place->watch == watch)
            folders.append(place.key());
    }
    for (const QString &folder : std::as_const(folders)) {
        if (isCreation)
            takeCreation(folder, name);
        else
            placeAgain(folder);
    }
}

void FolderWatch::takeCreation(const QString &folder, QByteArrayView name)
{
    const QString watched = places_.value(folder).path;
    if (watched == folder)
        created_(folder, name);
    else if (QFile::encodeName(QFileInfo(stepTowards(folder, watched)).fileName()) == name)
        placeAgain(folder);
}

void FolderWatch::placeAgain(const QString &folder)
{
    place(folder);
    if (places_.value(folder).path == folder)
        created_(folder, {});
}

void FolderWatch::takeLoss()
{
    const QStringList folders = places_.keys();
    for (const QString &folder : folders)
        placeAgain(folder);
}

} // namespace vantrel
