#pragma once

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QString>

#include <optional>

class QPainter;

namespace vantrel {

struct Profile;

/// What a profile's icon is drawn from, and the drawing: the profile's picture, else glasses for a private window, else
/// the first letter of its name, always in an oval. Needs a QGuiApplication; main thread.
struct ProfileIcon {
    /// A picture file's content. What Qt can't read counts as none.
    std::optional<QByteArray> avatar = std::nullopt;
    bool isPrivate = false;
    QString id;
    QString displayName;

    /// `displayName` is the name that the user sees.
    [[nodiscard]] static ProfileIcon of(const Profile &profile, const QString &displayName);

    /// Draws into a square and leaves the painter's state as it was. The avatar is read each time.
    void draw(QPainter &painter, const QRectF &rectangle) const;

    /// The icon on a transparent square with a side of that many device pixels; a null image for less than one.
    [[nodiscard]] QImage image(int pixels) const;

    friend bool operator==(const ProfileIcon &one, const ProfileIcon &other);
};

} // namespace vantrel
