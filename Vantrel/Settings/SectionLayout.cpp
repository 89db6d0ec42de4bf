#include "Vantrel/Settings/SectionLayout.h"

#include <algorithm>

namespace vantrel {

SectionLayout::SectionLayout(QList<Section> sections, int rowHeight)
    : sections_(std::move(sections)),
      rowHeight_(rowHeight)
{
    for (const Section &section : std::as_const(sections_)) {
        if (height_ > 0)
            height_ += sectionSpacing;
        Tops tops{.header = height_, .notes = {}, .rows = 0};
        height_ += section.headerHeight;
        for (const int noteHeight : section.noteHeights) {
            tops.notes.append(height_ + partSpacing);
            height_ += partSpacing + noteHeight;
        }
        tops.rows = height_ + partSpacing;
        if (section.rowCount > 0)
            height_ = tops.rows + (static_cast<int>(section.rowCount) * rowHeight_);
        tops_.append(tops);
    }
}

int SectionLayout::rowTop(Row row) const
{
    return tops_[row.section].rows + (static_cast<int>(row.index) * rowHeight_);
}

int SectionLayout::rowsHeight(qsizetype section) const
{
    return static_cast<int>(sections_[section].rowCount) * rowHeight_;
}

QList<SectionLayout::Row> SectionLayout::rowsBetween(int top, int bottom) const
{
    QList<Row> rows;
    if (rowHeight_ < 1)
        return rows;
    for (qsizetype section = 0; section < sections_.size(); ++section) {
        const int rowsTop = tops_[section].rows;
        const auto first = std::max<qsizetype>(0, (top - rowsTop) / rowHeight_);
        for (auto index = first; index < sections_[section].rowCount && rowTop({section, index}) < bottom; ++index) {
            if (rowTop({section, index}) + rowHeight_ > top)
                rows.append({section, index});
        }
    }
    return rows;
}

} // namespace vantrel
