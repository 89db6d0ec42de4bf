#include "Tests/Vantrel/Pictures/Pixels.h"
#include "Tests/VantrelKit/Pictures.h"
#include "Vantrel/Pictures/ProfileIcon.h"

#include <QBuffer>
#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QByteArray png(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return bytes;
}

QByteArray filled(QSize size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return png(image);
}

ProfileIcon withAvatar(const QByteArray &avatar, bool isPrivate = false)
{
    return {avatar, isPrivate, u"a"_s, u"Work"_s};
}

TEST(ProfileIconAvatar, FillsTheWholeRectangleWhateverSizeThePictureHas)
{
    for (const QSize size : {QSize(4, 4), QSize(16, 16), QSize(128, 128), QSize(300, 300), QSize(128, 32)}) {
        for (const int pixels : {16, 24, 32, 64}) {
            const QImage image = withAvatar(test::picture(size, "PNG")).image(pixels);
            const int near = pixels / 4;
            const int far = pixels - 1 - near;
            EXPECT_EQ(test::corners(image.copy(near, near, far - near + 1, far - near + 1)), "rgbw")
                << size.width() << " by " << size.height() << " at " << pixels;
        }
    }
}

TEST(ProfileIconAvatar, KeepsItsExactColourUpToTheEdge)
{
    const QColor color(12, 200, 99);
    for (const QSize size : {QSize(1, 1), QSize(16, 16), QSize(128, 128), QSize(64, 128)}) {
        for (const int pixels : {16, 24, 33, 64}) {
            const QImage image = withAvatar(filled(size, color)).image(pixels);
            for (const QPoint point : {QPoint(pixels / 2, pixels / 2), QPoint(pixels / 2, 1), QPoint(1, pixels / 2),
                                       QPoint(pixels - 2, pixels / 2), QPoint(pixels / 2, pixels - 2)})
                EXPECT_EQ(image.pixelColor(point), color) << pixels << " at " << point.x() << ", " << point.y();
        }
    }
}

TEST(ProfileIconAvatar, OfTheIconsOwnSizeIsShownPixelByPixel)
{
    QImage picture(32, 32, QImage::Format_RGB32);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x)
            picture.setPixelColor(x, y, QColor(x * 8, y * 8, (x + y) % 2 * 255));
    }
    const QImage image = withAvatar(png(picture)).image(32);
    for (int y = 8; y < 24; ++y) {
        for (int x = 8; x < 24; ++x)
            ASSERT_EQ(image.pixelColor(x, y), picture.pixelColor(x, y)) << x << ", " << y;
    }
}

TEST(ProfileIconAvatar, IsReducedSmoothly)
{
    QImage stripes(128, 128, QImage::Format_RGB32);
    for (int y = 0; y < 128; ++y) {
        for (int x = 0; x < 128; ++x)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    }
    const QImage image = withAvatar(png(stripes)).image(16);
    for (int x = 4; x < 12; ++x)
        EXPECT_NEAR(image.pixelColor(x, 8).red(), 128, 3) << x;
}

TEST(ProfileIconAvatar, IsEnlargedSmoothly)
{
    QImage halves(2, 1, QImage::Format_RGB32);
    halves.setPixelColor(0, 0, Qt::black);
    halves.setPixelColor(1, 0, Qt::white);
    const QImage image = withAvatar(png(halves)).image(64);
    for (int x = 17; x < 48; ++x) {
        const int step = image.pixelColor(x, 32).red() - image.pixelColor(x - 1, 32).red();
        EXPECT_GE(step, 0) << x;
        EXPECT_LE(step, 16) << x;
    }
}

TEST(ProfileIconAvatar, StaysTransparentWhereItIs)
{
    const QImage clear = withAvatar(filled({64, 64}, Qt::transparent)).image(32);
    EXPECT_EQ(test::opaqueBounds(clear), QRectF(0, 0, 0, 0));
    const QImage half = withAvatar(filled({64, 64}, QColor(255, 0, 0, 128))).image(32);
    EXPECT_NEAR(half.pixelColor(16, 16).alpha(), 128, 1);
    EXPECT_EQ(half.pixelColor(16, 16).green(), 0);
}

TEST(ProfileIconAvatar, LetsWhatWasThereShowThrough)
{
    QImage canvas(32, 32, QImage::Format_RGB32);
    canvas.fill(Qt::yellow);
    QPainter painter(&canvas);
    withAvatar(filled({64, 64}, Qt::transparent)).draw(painter, QRectF(0, 0, 32, 32));
    painter.end();
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x)
            ASSERT_EQ(canvas.pixelColor(x, y), QColor(Qt::yellow)) << x << ", " << y;
    }
}

TEST(ProfileIconAvatar, ComesBeforeTheGlassesOfAPrivateWindow)
{
    const QByteArray avatar = test::picture({64, 64}, "PNG");
    EXPECT_EQ(withAvatar(avatar, true).image(32), withAvatar(avatar, false).image(32));
    EXPECT_NE(withAvatar({}, true).image(32), withAvatar(avatar, true).image(32));
}

TEST(ProfileIconAvatar, IsReadInEveryFormatThatQtReads)
{
    for (const char *format : {"PNG", "JPG", "BMP"}) {
        const QImage image = withAvatar(test::picture({64, 64}, format)).image(32);
        EXPECT_EQ(test::corners(image.copy(8, 8, 16, 16)), "rgbw") << format;
    }
}

TEST(ProfileIconAvatar, ThatIsNoPictureCountsAsNone)
{
    const QByteArray whole = test::picture({64, 64}, "PNG");
    for (const QByteArray &damaged : QByteArrayList{QByteArray(), QByteArray("text"), QByteArray(5000, '\0'),
                                                    whole.first(8), whole.first(20), "x" + whole, QByteArray("<svg")}) {
        for (const bool isPrivate : {false, true}) {
            ProfileIcon without = withAvatar(damaged, isPrivate);
            without.avatar = std::nullopt;
            EXPECT_EQ(withAvatar(damaged, isPrivate).image(32), without.image(32)) << damaged.left(10).toStdString();
        }
    }
}

TEST(ProfileIconAvatar, ThatOnlyClaimsToBeHugeCountsAsNone)
{
    QByteArray huge = test::picture({2, 2}, "BMP");
    // Width and height, each in four bytes, the smallest first.
    huge.replace(18, 8, QByteArray("\x50\xc3\x00\x00\x50\xc3\x00\x00", 8));
    ProfileIcon without = withAvatar(huge);
    without.avatar = std::nullopt;
    EXPECT_EQ(withAvatar(huge).image(32), without.image(32));
}

} // namespace
} // namespace vantrel
