#pragma once

#include <QWidget>

#include <optional>

namespace vantrel {

/// What the list's parts lie on: a frame around the rows of each browser, lines between rows, and the line that shows
/// where a dragged row goes.
class ProfilesCanvas final : public QWidget {
public:
    /// The rows of a browser.
    struct Group {
        QRect frame;
        int rowHeight = 0;

        friend bool operator==(const Group &, const Group &) = default;
    };

    explicit ProfilesCanvas(QWidget *parent = nullptr);

    void setGroups(const QList<Group> &groups);
    /// None to show no line.
    void setDropLine(std::optional<QRect> line);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<Group> groups_;
    /// Above all rows.
    QWidget *dropLine_;
};

} // namespace vantrel
