#include "Vantrel/Pictures/ProfileIcon.h"

#include "Tests/Vantrel/Pictures/Pixels.h"
#include "Tests/VantrelKit/Pictures.h"
#include "VantrelKit/Profile.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cstdlib>
#include <numbers>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QColor privateGrey(71, 71, 71);

ProfileIcon privateIcon()
{
    return {std::nullopt, true, u"com.google.Chrome/private"_s, u"Private Window"_s};
}

/// One of each kind.
std::vector<std::pair<std::string, ProfileIcon>> kinds()
{
    return {{"avatar", {test::picture({128, 128}, "PNG"), false, u"a"_s, u"Work"_s}},
            {"private window", privateIcon()},
            {"initial", {std::nullopt, false, u"a"_s, u"Work"_s}}};
}

TEST(ProfileIcon, IsASquareOfThePixelsAskedFor)
{
    for (const auto &[kind, icon] : kinds()) {
        for (const int pixels : {1, 2, 3, 5, 16, 17, 20, 22, 24, 32, 64, 1024}) {
            const QImage image = icon.image(pixels);
            EXPECT_EQ(image.size(), QSize(pixels, pixels)) << kind;
            EXPECT_EQ(image.devicePixelRatio(), 1) << kind;
        }
        EXPECT_TRUE(icon.image(0).isNull()) << kind;
        EXPECT_TRUE(icon.image(-16).isNull()) << kind;
    }
}

TEST(ProfileIcon, FillsTheOvalAndLeavesTheCornersTransparent)
{
    for (const auto &[kind, icon] : kinds()) {
        for (const int pixels : {16, 17, 24, 32, 64}) {
            const QImage image = icon.image(pixels);
            const int last = pixels - 1;
            for (const QPoint corner : {QPoint(0, 0), QPoint(last, 0), QPoint(0, last), QPoint(last, last)})
                EXPECT_EQ(image.pixelColor(corner).alpha(), 0) << kind << ' ' << pixels;
            EXPECT_EQ(image.pixelColor(pixels / 2, pixels / 2).alpha(), 255) << kind << ' ' << pixels;
            const QRectF bounds = test::opaqueBounds(image);
            EXPECT_NEAR(bounds.width(), pixels, 0.3) << kind;
            EXPECT_NEAR(bounds.height(), pixels, 0.3) << kind;
        }
    }
}

TEST(ProfileIcon, CoversACirclesAreaAndHasASmoothEdge)
{
    for (const auto &[kind, icon] : kinds()) {
        const QImage image = icon.image(64);
        double area = 0;
        int partial = 0;
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const int alpha = image.pixelColor(x, y).alpha();
                area += alpha / 255.0;
                partial += alpha > 0 && alpha < 255 ? 1 : 0;
            }
        }
        EXPECT_NEAR(area, std::numbers::pi * 32 * 32, 10) << kind;
        EXPECT_GT(partial, 100) << kind;
    }
}

TEST(ProfileIcon, DrawsTheSameAnywhereAndTouchesNothingElse)
{
    for (const auto &[kind, icon] : kinds()) {
        QImage canvas(40, 30, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        icon.draw(painter, QRectF(11, 5, 16, 16));
        painter.end();
        QImage expected(40, 30, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter(&expected).drawImage(11, 5, icon.image(16));
        EXPECT_EQ(canvas, expected) << kind;
    }
}

TEST(ProfileIcon, DrawsNothingIntoAnEmptyRectangle)
{
    for (const auto &[kind, icon] : kinds()) {
        QImage canvas(8, 8, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        const QImage before = canvas.copy();
        QPainter painter(&canvas);
        icon.draw(painter, QRectF(4, 4, 0, 0));
        icon.draw(painter, QRectF());
        painter.end();
        EXPECT_EQ(canvas, before) << kind;
    }
}

TEST(ProfileIcon, LeavesThePaintersStateAsItWas)
{
    for (const auto &[kind, icon] : kinds()) {
        QImage canvas(32, 32, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&canvas);
        const QFont font = painter.font();
        const QPainter::RenderHints hints = painter.renderHints();
        painter.setPen(Qt::red);
        painter.setBrush(Qt::green);
        icon.draw(painter, QRectF(0, 0, 32, 32));
        EXPECT_EQ(painter.pen(), QPen(Qt::red)) << kind;
        EXPECT_EQ(painter.brush(), QBrush(Qt::green)) << kind;
        EXPECT_EQ(painter.font(), font) << kind;
        EXPECT_EQ(painter.renderHints(), hints) << kind;
        EXPECT_FALSE(painter.hasClipping()) << kind;
        EXPECT_TRUE(painter.transform().isIdentity()) << kind;
    }
}

TEST(ProfileIcon, OnAScaledImageHasThatImagesPixels)
{
    for (const auto &[kind, icon] : kinds()) {
        for (const auto &[scale, pixels] : std::vector<std::pair<double, int>>{{1.5, 24}, {2, 32}, {4, 64}}) {
            QImage canvas(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
            canvas.setDevicePixelRatio(scale);
            canvas.fill(Qt::transparent);
            QPainter painter(&canvas);
            icon.draw(painter, QRectF(0, 0, 16, 16));
            painter.end();
            canvas.setDevicePixelRatio(1);
            const QImage expected = icon.image(pixels);
            double difference = 0;
            for (int y = 0; y < pixels; ++y) {
                for (int x = 0; x < pixels; ++x) {
                    difference += std::abs(canvas.pixelColor(x, y).red() - expected.pixelColor(x, y).red()) +
                                  std::abs(canvas.pixelColor(x, y).alpha() - expected.pixelColor(x, y).alpha());
                }
            }
            // Letters are set a fraction of a pixel apart where the painter scales.
            EXPECT_LT(difference / (pixels * pixels), 12) << kind << " at " << scale;
        }
    }
}

TEST(ProfileIcon, OfAPrivateWindowIsGreyWithGlasses)
{
    for (const int pixels : {16, 17, 20, 22, 24, 27, 32, 33, 48, 64, 128, 1024}) {
        const QImage image = privateIcon().image(pixels);
        EXPECT_EQ(image.pixelColor(pixels / 2, pixels / 8), privateGrey) << pixels;
        EXPECT_EQ(image.pixelColor(pixels / 8, pixels / 2), privateGrey) << pixels;
        const QRectF glasses = test::whiteBounds(image, privateGrey);
        EXPECT_NEAR(glasses.width(), 0.42 * pixels, 1.5) << pixels;
        EXPECT_LT(glasses.height(), 0.6 * glasses.width()) << pixels;
        EXPECT_GT(glasses.height(), 0.3 * glasses.width()) << pixels;
        EXPECT_NEAR(glasses.center().x(), pixels / 2.0, 0.3) << pixels;
        EXPECT_NEAR(glasses.center().y(), pixels / 2.0, 0.3) << pixels;
    }
}

TEST(ProfileIcon, OfAPrivateWindowIsSymmetricAndHasTwoLenses)
{
    for (const int pixels : {16, 24, 32, 64}) {
        const QImage image = privateIcon().image(pixels);
        const auto whiteAt = [&image, row = pixels / 2](int x) {
            return test::whiteness(image.pixelColor(x, row), privateGrey);
        };
        int changes = 0;
        for (int x = 1; x < pixels; ++x) {
            changes += (whiteAt(x) > 0.5) != (whiteAt(x - 1) > 0.5) ? 1 : 0;
            EXPECT_NEAR(whiteAt(x), whiteAt(pixels - 1 - x), 0.02) << pixels << " at " << x;
        }
        // Each of two lenses has two rims, each rim two edges.
        EXPECT_EQ(changes, 8) << pixels;
    }
}

TEST(ProfileIcon, OfAProfileTakesWhatItShowsFromThere)
{
    const Profile profile{u"com.google.Chrome"_s, u"Person 1"_s, ProfileTarget::chromium(u"Profile 1"_s), "bytes"};
    EXPECT_EQ(ProfileIcon::of(profile, u"Work"_s),
              (ProfileIcon{QByteArray("bytes"), false, u"com.google.Chrome/chromium:Profile 1"_s, u"Work"_s}));
    const Profile window = Profile::privateWindow(u"com.google.Chrome"_s);
    EXPECT_EQ(ProfileIcon::of(window, u"Private"_s), (ProfileIcon{std::nullopt, true, window.id(), u"Private"_s}));
}

} // namespace
} // namespace vantrel
