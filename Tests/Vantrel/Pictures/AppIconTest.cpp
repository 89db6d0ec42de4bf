#include "Tests/Vantrel/Pictures/Pixels.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString iconPath(const QString &name)
{
    return QStringLiteral(VANTREL_ICONS) + u'/' + name;
}

QImage rendered(const QString &name, int pixels)
{
    QSvgRenderer renderer(iconPath(name));
    EXPECT_TRUE(renderer.isValid()) << name.toStdString();
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}

TEST(AppIcon, IsAWhitePlaneOnBlueAtEverySize)
{
    for (const int pixels : {16, 22, 24, 32, 48, 64, 128, 256, 512, 1024}) {
        const QImage image = rendered(u"app.kestrune.Vantrel.svg"_s, pixels);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << pixels;
        EXPECT_EQ(image.pixelColor(pixels - 1, pixels - 1).alpha(), 0) << pixels;
        // Left below, beside the plane, and on its right wing.
        const QColor ground = image.pixelColor(pixels * 26 / 100, pixels * 76 / 100);
        EXPECT_GT(ground.blue(), ground.red() + 80) << pixels;
        const QColor plane = image.pixelColor(pixels * 60 / 100, pixels * 62 / 100);
        EXPECT_GT(test::contrast(plane, ground), 3) << pixels;
        EXPECT_GT(test::whiteness(plane, ground), 0.8) << pixels;
    }
}

TEST(AppIcon, HasEdgesOnThePixelsOfTheUsualSizes)
{
    for (const int pixels : {16, 32, 48, 64, 128}) {
        const QRectF bounds = test::opaqueBounds(rendered(u"app.kestrune.Vantrel.svg"_s, pixels));
        const double margin = pixels / 16.0;
        EXPECT_EQ(bounds, QRectF(margin, margin, pixels - (2 * margin), pixels - (2 * margin))) << pixels;
    }
}

TEST(AppIcon, TheSymbolicOneIsOfOneColourThatDesktopsReplace)
{
    const QString name = u"app.kestrune.Vantrel-symbolic.svg"_s;
    const QImage image = rendered(name, 64);
    EXPECT_EQ(image.pixelColor(40, 40), QColor(0xbe, 0xbe, 0xbe));
    EXPECT_EQ(QSvgRenderer(iconPath(name)).viewBox(), QRect(0, 0, 16, 16));
    QFile file(iconPath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains("fill=\"currentColor\""));
    EXPECT_TRUE(text.contains("class=\"ColorScheme-Text\""));
    EXPECT_TRUE(text.contains("id=\"current-color-scheme\""));
}

} // namespace
} // namespace vantrel
