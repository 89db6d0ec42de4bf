#include "Vantrel/Interface/DarkPalette.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vantrel {
namespace {

/// The share of light, as WCAG 2.1 reckons it.
double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return (0.2126 * linear(color.redF())) + (0.7152 * linear(color.greenF())) + (0.0722 * linear(color.blueF()));
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(DarkPalette, TextsCanBeReadOnWhatTheyStandOn)
{
    const QPalette palette = darkPalette();
    EXPECT_TRUE(isDark(palette));
    // What WCAG asks of normal texts, and for hints and what can't be used of large ones.
    constexpr double normal = 4.5;
    constexpr double faint = 3;
    EXPECT_GE(contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), normal);
    EXPECT_GE(contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), normal);
    EXPECT_GE(contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), normal);
    EXPECT_GE(contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)), normal);
    EXPECT_GE(contrast(palette.color(QPalette::Link), palette.color(QPalette::Window)), normal);
    EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), normal);
    EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), faint);
    EXPECT_GE(contrast(palette.color(QPalette::Disabled, QPalette::WindowText), palette.color(QPalette::Window)),
              faint);
}

TEST(DarkPalette, TheProgramsWindowsGetDarkAndLightAgain)
{
    const QColor light = QApplication::palette().color(QPalette::Window);
    ASSERT_FALSE(isDark(QApplication::palette()));
    setDark(true);
    EXPECT_TRUE(isDark(QApplication::palette()));
    setDark(true);
    EXPECT_TRUE(isDark(QApplication::palette()));
    setDark(false);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), light);
}

} // namespace
} // namespace vantrel
