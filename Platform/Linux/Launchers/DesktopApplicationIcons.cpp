#include "Platform/Linux/Launchers/DesktopApplicationIcons.h"

#include "Platform/Linux/DesktopEntry.h"
#include "VantrelKit/Paths.h"

#include <QDir>
#include <QImageReader>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Drawn in any size.
constexpr int scalable = 100'000;

/// The size that a folder of a theme is for, in pixels: "48x48", "256x256@2", "scalable"; 0 for others.
int sizeOf(const QString &folder)
{
    static const QRegularExpression pattern(u"^(\\d{1,4})x\\1(?:@(\\d))?$"_s);
    if (folder == "scalable"_L1)
        return scalable;
    const QRegularExpressionMatch match = pattern.match(folder);
    return match.captured(1).toInt() * std::max(1, match.captured(2).toInt());
}

QImage read(const QString &path, int pixels)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    // A drawing is drawn as large as it is needed.
    if (reader.supportsOption(QImageIOHandler::ScaledSize) && reader.format() == "svg" && size.isValid())
        reader.setScaledSize(size.scaled(pixels, pixels, Qt::KeepAspectRatio));
    return reader.read();
}

} // namespace

DesktopApplicationIcons::DesktopApplicationIcons(const Environment &environment)
{
    iconFolders_.append(joinedPath(environment.home, u".icons"_s));
    for (const QString &folder : QStringList(environment.dataHome) + environment.dataDirs) {
        iconFolders_.append(joinedPath(folder, u"icons"_s));
        pixmapFolders_.append(joinedPath(folder, u"pixmaps"_s));
    }
}

QStringList DesktopApplicationIcons::candidates(const QString &name, int pixels) const
{
    struct Candidate {
        int size;
        QString path;
    };
    QList<Candidate> found;
    for (const QString &folder : iconFolders_) {
        const QDir theme(folder + "/hicolor"_L1);
        for (const QString &size : theme.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            for (const auto ending : {".png"_L1, ".svg"_L1}) {
                const QString path = theme.filePath(size + "/apps/"_L1 + name + ending);
                if (sizeOf(size) > 0 && QFile::exists(path))
                    found.append({sizeOf(size), path});
            }
        }
    }
    // The smallest of those that are large enough, then the largest of the others.
    std::ranges::stable_sort(found, [pixels](const Candidate &one, const Candidate &other) {
        const bool isEnough = one.size >= pixels;
        if (isEnough != (other.size >= pixels))
            return isEnough;
        return isEnough ? one.size < other.size : one.size > other.size;
    });
    QStringList paths;
    for (const Candidate &each : std::as_const(found))
        paths.append(each.path);
    for (const QString &folder : pixmapFolders_) {
        for (const auto ending : {""_L1, ".png"_L1, ".svg"_L1, ".xpm"_L1})
            paths.append(joinedPath(folder, name + ending));
    }
    return paths;
}

QImage DesktopApplicationIcons::icon(const QUrl &application, int pixels) const
{
    const auto entry = DesktopEntryFile::read(application.toLocalFile()).entry;
    if (!entry || entry->icon.isEmpty())
        return {};
    const QStringList paths = entry->icon.startsWith(u'/') ? QStringList(entry->icon) : candidates(entry->icon, pixels);
    for (const QString &path : paths) {
        if (const QImage image = QFileInfo(path).isFile() ? read(path, pixels) : QImage(); !image.isNull())
            return image;
    }
    return {};
}

} // namespace vantrel
