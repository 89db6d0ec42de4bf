#pragma once

#include <QList>

#include <optional>

namespace vantrel {

/// Where the parts of the list of profiles lie, one below the other: for each browser its header, its notes and its
/// rows. All in points from the top of the list.
class SectionLayout {
public:
    struct Section {
        int headerHeight = 0;
        QList<int> noteHeights;
        qsizetype rowCount = 0;

        friend bool operator==(const Section &, const Section &) = default;
    };

    struct Row {
        qsizetype section = 0;
        qsizetype index = 0;

        friend bool operator==(const Row &, const Row &) = default;
    };

    /// Between the parts of a section, and before each but the first one.
    static constexpr int partSpacing = 6;
    static constexpr int sectionSpacing = 20;

    SectionLayout() = default;
    SectionLayout(QList<Section> sections, int rowHeight);

    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] int rowHeight() const { return rowHeight_; }
    [[nodiscard]] int headerTop(qsizetype section) const { return tops_[section].header; }
    [[nodiscard]] int noteTop(qsizetype section, qsizetype note) const { return tops_[section].notes[note]; }
    [[nodiscard]] int rowTop(Row row) const;
    [[nodiscard]] int rowsTop(qsizetype section) const { return tops_[section].rows; }
    [[nodiscard]] int rowsHeight(qsizetype section) const;

    /// The rows of which something lies between two heights, in their order.
    [[nodiscard]] QList<Row> rowsBetween(int top, int bottom) const;

    friend bool operator==(const SectionLayout &, const SectionLayout &) = default;

private:
    struct Tops {
        int header = 0;
        QList<int> notes;
        int rows = 0;

        friend bool operator==(const Tops &, const Tops &) = default;
    };

    QList<Section> sections_;
    QList<Tops> tops_;
    int rowHeight_ = 0;
    int height_ = 0;
};

} // namespace vantrel
