#include "Vantrel/Settings/SectionLayout.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

constexpr int rowHeight = 30;

/// The sections and indices of rows, as "0.1 0.2".
std::string text(const QList<SectionLayout::Row> &rows)
{
    std::string text;
    for (const SectionLayout::Row &row : rows)
        text += (text.empty() ? "" : " ") + std::to_string(row.section) + '.' + std::to_string(row.index);
    return text;
}

TEST(SectionLayout, PartsFollowEachOtherWithoutOverlap)
{
    const SectionLayout layout({{.headerHeight = 20, .noteHeights = {15, 40}, .rowCount = 2},
                                {.headerHeight = 24, .noteHeights = {}, .rowCount = 0},
                                {.headerHeight = 20, .noteHeights = {}, .rowCount = 1}},
                               rowHeight);
    EXPECT_EQ(layout.headerTop(0), 0);
    EXPECT_EQ(layout.noteTop(0, 0), 20 + SectionLayout::partSpacing);
    EXPECT_EQ(layout.noteTop(0, 1), layout.noteTop(0, 0) + 15 + SectionLayout::partSpacing);
    EXPECT_EQ(layout.rowsTop(0), layout.noteTop(0, 1) + 40 + SectionLayout::partSpacing);
    EXPECT_EQ(layout.rowTop({0, 1}), layout.rowsTop(0) + rowHeight);
    EXPECT_EQ(layout.rowsHeight(0), 2 * rowHeight);
    EXPECT_EQ(layout.headerTop(1), layout.rowsTop(0) + 2 * rowHeight + SectionLayout::sectionSpacing);
    EXPECT_EQ(layout.headerTop(2), layout.headerTop(1) + 24 + SectionLayout::sectionSpacing);
    EXPECT_EQ(layout.height(), layout.rowTop({2, 0}) + rowHeight);
}

TEST(SectionLayout, FindsTheRowsOfWhichSomethingIsSeen)
{
    const SectionLayout layout({{.headerHeight = 20, .noteHeights = {}, .rowCount = 3},
                                {.headerHeight = 20, .noteHeights = {}, .rowCount = 3}},
                               rowHeight);
    EXPECT_EQ(text(layout.rowsBetween(0, layout.height())), "0.0 0.1 0.2 1.0 1.1 1.2");
    const int second = layout.rowTop({0, 1});
    EXPECT_EQ(text(layout.rowsBetween(second, second + rowHeight)), "0.1");
    EXPECT_EQ(text(layout.rowsBetween(second - 1, second + rowHeight + 1)), "0.0 0.1 0.2");
    EXPECT_EQ(text(layout.rowsBetween(layout.rowTop({0, 2}) + rowHeight, layout.rowTop({1, 0}))), "");
    EXPECT_EQ(text(layout.rowsBetween(-100, 0)), "");
    EXPECT_EQ(text(layout.rowsBetween(layout.height(), layout.height() + 100)), "");
}

TEST(SectionLayout, NothingHasNoHeight)
{
    EXPECT_EQ(SectionLayout().height(), 0);
    EXPECT_TRUE(SectionLayout().rowsBetween(0, 100).isEmpty());
    EXPECT_TRUE(
        SectionLayout({{.headerHeight = 20, .noteHeights = {}, .rowCount = 0}}, 0).rowsBetween(0, 100).isEmpty());
}

} // namespace
} // namespace vantrel
