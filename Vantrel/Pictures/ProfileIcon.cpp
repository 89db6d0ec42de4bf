#include "Vantrel/Pictures/ProfileIcon.h"

#include "Vantrel/Pictures/ProfileColor.h"
#include "Vantrel/Pictures/ProfileInitial.h"
#include "Vantrel/Pictures/Symbols.h"
#include "VantrelKit/PictureDecoding.h"
#include "VantrelKit/Profile.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr double privateWhiteLevel = 0.28;
constexpr double glassesShare = 0.42;
/// With fewer pixels across nobody sees glasses.
constexpr int leastGlasses = 8;
constexpr double letterShare = 0.5;

/// Copies of one picture are the same without a look at all that they hold.
bool isSamePicture(const std::optional<QByteArray> &one, const std::optional<QByteArray> &other)
{
    if (!one || !other)
        return one.has_value() == other.has_value();
    return (one->constData() == other->constData() && one->size() == other->size()) || *one == *other;
}

QImage readAvatar(const QByteArray &content)
{
    QBuffer file;
    file.setData(content);
    return file.open(QIODevice::ReadOnly) ? decodedPicture(file) : QImage();
}

void fillOval(QPainter &painter, const QRectF &rectangle, const QBrush &brush)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(rectangle);
}

/// How many device pixels a rectangle covers, at least one each way.
QSize deviceSize(const QPainter &painter, const QRectF &rectangle)
{
    return painter.deviceTransform().mapRect(rectangle).size().toSize().expandedTo(QSize(1, 1));
}

/// As the oval's brush rather than clipped by it: of clips QPainter doesn't promise smooth edges. Reduced beforehand,
/// for a brush picks single pixels of a picture that is much larger than the rectangle.
void drawAvatar(QPainter &painter, const QRectF &rectangle, const QImage &avatar)
{
    const QImage picture = avatar.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                               .scaled(deviceSize(painter, rectangle), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QBrush brush(picture);
    brush.setTransform(QTransform::fromTranslate(rectangle.x(), rectangle.y())
                           .scale(rectangle.width() / picture.width(), rectangle.height() / picture.height()));
    fillOval(painter, rectangle, brush);
}

/// The side of the glasses' square in device pixels. Odd or even as the rectangle's side, so that they can stand in its
/// middle without falling between pixels.
int glassesSide(int side)
{
    const double wanted = glassesShare * side;
    const int parity = side % 2;
    return std::max(leastGlasses + parity, (2 * qRound((wanted - parity) / 2)) + parity);
}

void drawPrivate(QPainter &painter, const QRectF &rectangle)
{
    const int grey = qRound(privateWhiteLevel * 255);
    fillOval(painter, rectangle, QColor(grey, grey, grey));
    const int devicePixels = deviceSize(painter, rectangle).width();
    const QImage glasses = symbolImage(u"eyeglasses"_s, glassesSide(devicePixels), Qt::white);
    QRectF target(QPointF(), QSizeF(glasses.size()) * (rectangle.width() / devicePixels));
    target.moveCenter(rectangle.center());
    painter.drawImage(target, glasses);
}

QFont letterFont(const QPaintDevice &device, double pixelSize)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setWeight(QFont::DemiBold);
    // In points, for sizes in pixels are whole numbers.
    font.setPointSizeF(pixelSize * 72 / device.logicalDpiY());
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

void drawInitial(QPainter &painter, const QRectF &rectangle, const QString &initial, const QColor &color)
{
    fillOval(painter, rectangle, color);
    const QPaintDevice &device = *painter.device();
    const QFont font = letterFont(device, letterShare * rectangle.height());
    // By what is seen: a line has room for accents and descenders, which most letters lack.
    const QRectF ink = QFontMetricsF(font, &device).tightBoundingRect(initial);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.setClipRect(rectangle, Qt::IntersectClip);
    painter.drawText(rectangle.center() - ink.center(), initial);
}

} // namespace

ProfileIcon ProfileIcon::of(const Profile &profile, const QString &displayName)
{
    return {profile.avatarPNG, profile.target.isPrivate(), profile.id(), displayName};
}

void ProfileIcon::draw(QPainter &painter, const QRectF &rectangle) const
{
    if (rectangle.isEmpty())
        return;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    const QImage picture = avatar ? readAvatar(*avatar) : QImage();
    if (!picture.isNull())
        drawAvatar(painter, rectangle, picture);
    else if (isPrivate)
        drawPrivate(painter, rectangle);
    else
        drawInitial(painter, rectangle, profileInitial(displayName), profileColor(id));
    painter.restore();
}

QImage ProfileIcon::image(int pixels) const
{
    if (pixels < 1)
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    draw(painter, QRectF(0, 0, pixels, pixels));
    painter.end();
    // An image keeps what has painted it for the next time, which takes more memory than a small one itself.
    return image.copy();
}

bool operator==(const ProfileIcon &one, const ProfileIcon &other)
{
    return one.isPrivate == other.isPrivate && one.id == other.id && one.displayName == other.displayName &&
           isSamePicture(one.avatar, other.avatar);
}

} // namespace vantrel
