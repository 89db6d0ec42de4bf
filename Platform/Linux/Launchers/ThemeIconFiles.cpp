#include "Platform/Linux/Launchers/ThemeIconFiles.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Those in which menus, docks and desktops show applications, at all scales.
constexpr std::array sizes{16, 32, 48, 64, 128, 256, 512};

QByteArray png(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

QString folderOf(const QString &path)
{
    return QFileInfo(path).path();
}

} // namespace

QStringList ThemeIconFiles::paths(const QString &themeFolder, const QString &iconName)
{
    QStringList paths;
    for (const int size : sizes)
        paths.append(u"%1/%2x%2/apps/%3.png"_s.arg(themeFolder, QString::number(size), iconName));
    return paths;
}

ThemeIconFiles::ThemeIconFiles(const std::function<QImage(int pixels)> &draw, const QString &nameStart,
                               const QString &place)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(place.toUtf8());
    for (const int size : sizes) {
        pictures_.append(png(draw(size)));
        hash.addData(pictures_.last());
    }
    constexpr qsizetype bytes = 4;
    name_ = nameStart + u'-' + QString::fromLatin1(hash.result().first(bytes).toHex());
}

FileSystem::Result ThemeIconFiles::write(FileSystem &files, const QString &themeFolder) const
{
    const QStringList paths = ThemeIconFiles::paths(themeFolder, name_);
    QStringList added;
    for (qsizetype index = 0; index < paths.size(); ++index) {
        const QString &path = paths.at(index);
        const bool isNew = !QFileInfo::exists(path);
        FileSystem::Result result = files.makeFolder(folderOf(path));
        if (result)
            result = files.write(path, pictures_.at(index), FileSystem::Access::readable);
        if (result) {
            if (isNew)
                added.append(path);
            continue;
        }
        for (const QString &each : std::as_const(added))
            std::ignore = files.remove(each);
        return result;
    }
    return {};
}

} // namespace vantrel
