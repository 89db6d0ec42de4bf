#include "Vantrel/Pictures/Symbols.h"

#include "Tests/Contract/SymbolImagesContract.h"
#include "Tests/Vantrel/Pictures/Pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const std::array<QString, 2> names{u"paperplane.fill"_s, u"eyeglasses"_s};
constexpr std::array<int, 10> sizes{8, 10, 14, 16, 22, 24, 32, 44, 48, 64};

/// The drawn area, 0 to 1.
double coverage(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += image.pixelColor(x, y).alphaF();
    }
    return sum / (image.width() * image.height());
}

/// How many pixels a symbol covers in part only, of those that it touches: 0 to 1.
double blur(const QImage &image)
{
    int touched = 0;
    int partial = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = image.pixelColor(x, y).alpha();
            touched += alpha > 0 ? 1 : 0;
            partial += alpha > 0 && alpha < 255 ? 1 : 0;
        }
    }
    return static_cast<double>(partial) / touched;
}

TEST(Symbols, AreDrawnInsideTheirBoundsAtEverySize)
{
    for (const QString &name : names) {
        for (const int pixels : sizes) {
            const QImage image = symbolImage(name, pixels, Qt::black);
            ASSERT_EQ(image.size(), QSize(pixels, pixels)) << name.toStdString();
            EXPECT_GT(coverage(image), 0.12) << name.toStdString() << ' ' << pixels;
            EXPECT_LT(coverage(image), 0.6) << name.toStdString() << ' ' << pixels;
            const QRectF bounds = test::opaqueBounds(image);
            EXPECT_GT(bounds.width(), 0.75 * pixels) << name.toStdString() << ' ' << pixels;
            EXPECT_NEAR(bounds.center().x(), pixels / 2.0, 0.06 * pixels) << name.toStdString() << ' ' << pixels;
            EXPECT_NEAR(bounds.center().y(), pixels / 2.0, 0.06 * pixels) << name.toStdString() << ' ' << pixels;
        }
    }
}

TEST(Symbols, ThePlaneIsNotCutOffByTheBounds)
{
    for (const int pixels : sizes) {
        const QImage image = symbolImage(u"paperplane.fill"_s, pixels, Qt::black);
        for (int i = 0; i < pixels; ++i) {
            EXPECT_LT(image.pixelColor(i, 0).alpha(), 128) << pixels;
            EXPECT_LT(image.pixelColor(i, pixels - 1).alpha(), 128) << pixels;
            EXPECT_LT(image.pixelColor(0, i).alpha(), 128) << pixels;
            EXPECT_LT(image.pixelColor(pixels - 1, i).alpha(), 128) << pixels;
        }
    }
}

TEST(Symbols, TheGlassesReachFromSideToSide)
{
    for (const int pixels : sizes) {
        const QRectF bounds = test::opaqueBounds(symbolImage(u"eyeglasses"_s, pixels, Qt::black));
        EXPECT_NEAR(bounds.width(), pixels, 0.5) << pixels;
        EXPECT_NEAR(bounds.center().y(), pixels / 2.0, 0.1) << pixels;
    }
}

TEST(Symbols, ThePlanePointsToTheUpperRight)
{
    for (const int pixels : sizes) {
        const QImage image = symbolImage(u"paperplane.fill"_s, pixels, Qt::black);
        const int quarter = std::max(pixels / 4, 2);
        EXPECT_GT(coverage(image.copy(pixels - quarter, 0, quarter, quarter)), 0.2) << pixels;
        EXPECT_EQ(coverage(image.copy(0, 0, quarter, quarter)), 0) << pixels;
        EXPECT_EQ(coverage(image.copy(0, pixels - quarter, quarter, quarter)), 0) << pixels;
        EXPECT_EQ(coverage(image.copy(pixels - quarter, pixels - quarter, quarter, quarter)), 0) << pixels;
    }
}

TEST(Symbols, HaveTheColourAskedForAndNoOther)
{
    const QColor color(200, 30, 120);
    for (const QString &name : names) {
        for (const int pixels : sizes) {
            const QImage image = symbolImage(name, pixels, color);
            for (int y = 0; y < pixels; ++y) {
                for (int x = 0; x < pixels; ++x) {
                    const QColor pixel = image.pixelColor(x, y);
                    if (pixel.alpha() > 100) {
                        // What is transparent in part has lost precision.
                        ASSERT_NEAR(pixel.red(), color.red(), pixel.alpha() == 255 ? 0 : 3) << name.toStdString();
                        ASSERT_NEAR(pixel.green(), color.green(), pixel.alpha() == 255 ? 0 : 3) << name.toStdString();
                    }
                }
            }
        }
    }
}

TEST(Symbols, HaveTheTransparencyOfTheirColour)
{
    const QImage opaque = symbolImage(u"paperplane.fill"_s, 32, Qt::white);
    const QImage faint = symbolImage(u"paperplane.fill"_s, 32, QColor(255, 255, 255, 128));
    EXPECT_NEAR(coverage(faint), coverage(opaque) * 128 / 255, 0.01);
}

TEST(Symbols, TheGlassesHaveCrispEdgesAtSmallSizes)
{
    // A drawing that fell between the pixels would have next to no pixel that is covered as a whole.
    for (const int pixels : {8, 10, 14, 16, 22, 32}) {
        const QImage image = symbolImage(u"eyeglasses"_s, pixels, Qt::black);
        EXPECT_LT(blur(image), 0.75) << pixels;
        const QRectF bounds = test::opaqueBounds(image);
        EXPECT_NEAR(bounds.top(), qRound(bounds.top()), 0.15) << pixels;
        EXPECT_NEAR(bounds.left(), 0, 0.15) << pixels;
    }
}

TEST(Symbols, UnknownOnesAreNoImage)
{
    EXPECT_TRUE(symbolImage(u"paperplane"_s, 16, Qt::black).isNull());
    EXPECT_TRUE(symbolImage(u""_s, 16, Qt::black).isNull());
    EXPECT_TRUE(symbolImage(u"eyeglasses"_s, 0, Qt::black).isNull());
    EXPECT_TRUE(symbolImage(u"eyeglasses"_s, -1, Qt::black).isNull());
}

/// The program's drawings, which take the place of the system's where that has none.
class Drawings final : public SymbolImages {
public:
    [[nodiscard]] QImage image(const QString &name, int pixels, const QColor &color) const override
    {
        return symbolImage(name, pixels, color);
    }
};

class DrawingsSystem {
public:
    const SymbolImages &images() { return drawings_; }

private:
    Drawings drawings_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Own, SymbolImagesContract, DrawingsSystem);

} // namespace test
} // namespace vantrel
