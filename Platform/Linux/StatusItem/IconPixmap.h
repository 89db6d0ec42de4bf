#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>

namespace vantrel {

/// A picture as panels take it: (iiay), the pixels as ARGB32 in network byte order, colours not multiplied with alpha.
struct IconPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;

    [[nodiscard]] static IconPixmap from(const QImage &image);

    friend bool operator==(const IconPixmap &, const IconPixmap &) = default;
};

/// What shows when the pointer rests on a symbol: (sa(iiay)ss).
struct StatusToolTip {
    QString iconName;
    QList<IconPixmap> icon;
    QString title;
    /// Panels take it for marked up text.
    QString text;
};

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusToolTip &toolTip);

/// To be called before any of these is sent, received or exported.
void registerIconPixmapTypes();

} // namespace vantrel
