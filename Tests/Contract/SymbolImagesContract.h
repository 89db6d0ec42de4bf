#pragma once

#include "Platform/SymbolImages.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

#include <concepts>
#include <set>

/// What every implementation of `SymbolImages` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name, SymbolImagesContract,
/// System)`.
namespace vantrel::test {

/// A system with symbols of its own, among them "eye.slash" and "gearshape". Provides what it takes to draw.
template <typename System>
concept SymbolImagesSystem = std::default_initializable<System> && requires(System system) {
    { system.images() } -> std::same_as<const SymbolImages &>;
};

template <SymbolImagesSystem System>
class SymbolImagesContract : public testing::Test {
protected:
    [[nodiscard]] QImage image(const QString &name, int pixels, const QColor &color = Qt::black)
    {
        return system_.images().image(name, pixels, color);
    }

    /// The colours of the pixels that are opaque.
    [[nodiscard]] static std::set<QRgb> colors(const QImage &image)
    {
        std::set<QRgb> found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb color = image.pixel(x, y);
                if (qAlpha(color) == 255)
                    found.insert(color);
            }
        }
        return found;
    }

    System system_;
};

TYPED_TEST_SUITE_P(SymbolImagesContract);

TYPED_TEST_P(SymbolImagesContract, ASymbolIsASquareOfTheSizeAskedInTheOneColorAsked)
{
    for (const int pixels : {24, 64, 200}) {
        for (const QColor &color : {QColor(0, 0, 255), QColor(255, 128, 0), QColor(0, 0, 0)}) {
            const QImage image = this->image(QStringLiteral("eye.slash"), pixels, color);
            ASSERT_EQ(image.size(), QSize(pixels, pixels));
            EXPECT_EQ(this->colors(image), std::set<QRgb>{color.rgba()});
            for (const QPoint corner : {QPoint(0, 0), QPoint(pixels - 1, 0), QPoint(0, pixels - 1)})
                EXPECT_EQ(qAlpha(image.pixel(corner)), 0);
        }
    }
}

TYPED_TEST_P(SymbolImagesContract, EachNameHasItsOwnSymbol)
{
    const QImage image = this->image(QStringLiteral("eye.slash"), 64);
    const QImage other = this->image(QStringLiteral("gearshape"), 64);
    ASSERT_FALSE(image.isNull());
    ASSERT_FALSE(other.isNull());
    EXPECT_NE(image, other);
}

TYPED_TEST_P(SymbolImagesContract, UnknownNamesHaveNone)
{
    for (const QString &name : {QStringLiteral("no.such.symbol"), QStringLiteral("eye.slas"), QString()})
        EXPECT_TRUE(this->image(name, 64).isNull()) << name.toStdString();
}

REGISTER_TYPED_TEST_SUITE_P(SymbolImagesContract, ASymbolIsASquareOfTheSizeAskedInTheOneColorAsked,
                            EachNameHasItsOwnSymbol, UnknownNamesHaveNone);

} // namespace vantrel::test
