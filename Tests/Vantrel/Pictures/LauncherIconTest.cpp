#include "Vantrel/Pictures/LauncherIcon.h"

#include "Tests/Vantrel/Pictures/Pixels.h"
#include "Tests/VantrelKit/Samples.h"

#include <QBuffer>
#include <QColorSpace>
#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QColor blue(20, 60, 200);
const QColor green(10, 160, 40);

/// A browser's icon of one colour.
std::function<QImage(int)> plain(const QColor &color)
{
    return [color](int pixels) {
        QImage image(pixels, pixels, QImage::Format_ARGB32);
        image.fill(color);
        return image;
    };
}

/// A profile whose picture has one colour.
ProfileIcon pictured(const QColor &color)
{
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, "PNG"));
    return {.avatar = buffer.data(), .isPrivate = false, .id = u"x"_s, .displayName = u"x"_s};
}

LauncherIcon icon()
{
    return {plain(blue), pictured(green)};
}

QImage premultiplied(const QList<std::array<uchar, 4>> &pixels)
{
    QImage image(static_cast<int>(pixels.size()), 1, QImage::Format_RGBA8888_Premultiplied);
    for (qsizetype index = 0; index < pixels.size(); ++index)
        std::ranges::copy(pixels[index], image.scanLine(0) + (index * 4));
    return image;
}

TEST(LauncherIcon, HalfTransparentPixelsAreStrengthened)
{
    // Each row is worked out by hand from the rule; the last has more colour than its alpha allows.
    QImage image = premultiplied({{0, 0, 0, 0},
                                  {10, 20, 30, 255},
                                  {1, 0, 1, 1},
                                  {50, 25, 100, 100},
                                  {108, 7, 0, 216},
                                  {217, 100, 1, 217},
                                  {254, 127, 3, 254},
                                  {200, 5, 0, 10}});
    strengthen(image);
    EXPECT_EQ(image, premultiplied({{0, 0, 0, 0},
                                    {10, 20, 30, 255},
                                    {1, 0, 1, 1},
                                    {58, 29, 117, 117},
                                    {126, 8, 0, 253},
                                    {255, 117, 1, 255},
                                    {255, 127, 3, 255},
                                    {11, 5, 0, 11}}));
}

TEST(LauncherIcon, TheBadgeStandsInTheLowerRightCorner)
{
    EXPECT_DOUBLE_EQ(badgeBorder(16), 0.4);
    EXPECT_DOUBLE_EQ(badgeBorder(32), 0.8);
    EXPECT_DOUBLE_EQ(badgeBorder(64), 1.0);
    EXPECT_DOUBLE_EQ(badgeBorder(1024), 1.0);
    const auto expectRectangle = [](int pixels, const QRectF &expected) {
        const QRectF found = badgeRectangle(pixels);
        EXPECT_NEAR(found.left(), expected.left(), 1e-9) << pixels;
        EXPECT_NEAR(found.top(), expected.top(), 1e-9) << pixels;
        EXPECT_NEAR(found.width(), expected.width(), 1e-9) << pixels;
        EXPECT_NEAR(found.height(), expected.height(), 1e-9) << pixels;
    };
    expectRectangle(16, {6.64, 6.64, 7.36, 7.36});
    expectRectangle(128, {55.32, 55.32, 58.88, 58.88});
    expectRectangle(1024, {449.56, 449.56, 471.04, 471.04});
}

class LauncherIconSizes : public testing::TestWithParam<int> {};

TEST_P(LauncherIconSizes, TheBadgeIsTheProfilesIconInAWhiteCircleOnTheBrowsers)
{
    const int size = GetParam();
    const QImage image = icon().image(size);
    ASSERT_EQ(image.size(), QSize(size, size));
    const QRectF badge = badgeRectangle(size);
    const double border = badgeBorder(size);
    const double radius = badge.width() / 2;
    int browsers = 0;
    int badges = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double distance = QLineF(badge.center(), QPointF(x + 0.5, y + 0.5)).length();
            const QColor color = image.pixelColor(x, y);
            if (distance > radius + border + 1) {
                ASSERT_EQ(color, blue) << x << ' ' << y;
                ++browsers;
            } else if (distance < radius - 1) {
                ASSERT_EQ(color, green) << x << ' ' << y;
                ++badges;
            }
        }
    }
    EXPECT_GT(browsers, size * size / 2);
    EXPECT_GT(badges, size * size / 12);
}

TEST_P(LauncherIconSizes, TheWhiteCircleIsAsWideAsTheBadgeWithItsBorder)
{
    const int size = GetParam();
    LauncherIcon white = icon();
    white.profile = pictured(Qt::white);
    const QRectF found = test::whiteBounds(white.image(size), blue);
    const QRectF badge = badgeRectangle(size);
    const double border = badgeBorder(size);
    const double tolerance = 0.3;
    EXPECT_NEAR(found.left(), badge.left() - border, tolerance);
    EXPECT_NEAR(found.top(), badge.top() - border, tolerance);
    EXPECT_NEAR(found.right(), badge.right() + border, tolerance);
    EXPECT_NEAR(found.bottom(), badge.bottom() + border, tolerance);
}

TEST_P(LauncherIconSizes, TheBadgeIsDrawnAsTheMenuDrawsIt)
{
    const int size = GetParam();
    for (const Profile &profile : test::profiles(u"c:1=Work c:private"_s)) {
        const LauncherIcon launcher{plain(blue), ProfileIcon::of(profile, u"Work"_s)};
        QImage expected(size, size, QImage::Format_RGBA8888_Premultiplied);
        expected.fill(blue);
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        const QRectF badge = badgeRectangle(size);
        painter.drawEllipse(badge + QMarginsF(1, 1, 1, 1) * badgeBorder(size));
        ProfileIcon::of(profile, u"Work"_s).draw(painter, badge);
        painter.end();
        expected.setColorSpace(QColorSpace::SRgb);
        EXPECT_EQ(launcher.image(size), expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, LauncherIconSizes, testing::Values(16, 128, 1024));

TEST(LauncherIcon, OnlyTheBrowsersIconIsStrengthenedAndNotTheBadge)
{
    const LauncherIcon faint{plain(QColor(200, 100, 50, 100)), pictured(green)};
    const QImage image = faint.image(64);
    // The alpha of 100 becomes 117, the premultiplied 78 becomes 91.
    const uchar *corner = image.constScanLine(0);
    EXPECT_EQ(corner[3], 117);
    EXPECT_EQ(corner[0], 91);
    LauncherIcon seeThrough = icon();
    seeThrough.browser = plain(Qt::transparent);
    const QImage badge = seeThrough.image(128);
    QImage expected(128, 128, QImage::Format_RGBA8888_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(badgeRectangle(128) + QMarginsF(1, 1, 1, 1));
    pictured(green).draw(painter, badgeRectangle(128));
    painter.end();
    expected.setColorSpace(QColorSpace::SRgb);
    EXPECT_EQ(badge, expected);
}

TEST(LauncherIcon, ABrowsersIconOfAnotherSizeFillsTheSquare)
{
    for (const int source : {1, 24, 48, 500}) {
        const LauncherIcon launcher{[source](int) { return plain(blue)(source); }, pictured(green)};
        const QImage image = launcher.image(32);
        for (const QPoint &corner : {QPoint(0, 0), QPoint(31, 0), QPoint(0, 31), QPoint(31, 31)})
            EXPECT_EQ(image.pixelColor(corner), blue) << source;
    }
}

TEST(LauncherIcon, WithoutABrowsersIconTheProfilesStandsAlone)
{
    const std::function<QImage(int)> noIcon = [](int) { return QImage(); };
    for (const auto &browser : {noIcon, std::function<QImage(int)>()}) {
        const QImage image = LauncherIcon{browser, pictured(green)}.image(48);
        EXPECT_EQ(image.pixelColor(24, 24), green);
        EXPECT_EQ(image.pixelColor(1, 24), green);
        EXPECT_EQ(image.pixelColor(0, 0), QColor(0, 0, 0, 0));
    }
}

TEST(LauncherIcon, ItIsInTheColoursOfTheWebWithItsAlphaLast)
{
    EXPECT_EQ(icon().image(16).format(), QImage::Format_RGBA8888_Premultiplied);
    EXPECT_EQ(icon().image(16).colorSpace(), QColorSpace(QColorSpace::SRgb));
    EXPECT_TRUE(icon().image(0).isNull());
}

} // namespace
} // namespace vantrel
