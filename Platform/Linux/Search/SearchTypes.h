#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QImage>
#include <QString>
#include <QVariantMap>

namespace vantrel {

// What travels in calls of the desktops' searches.

/// An icon as GIO serialises it, here the bytes of a file: (sv).
struct SerializedIcon {
    QString kind;
    QDBusVariant value;

    [[nodiscard]] static SerializedIcon ofFile(const QByteArray &content);
};

/// An image as in "icon-data" of notifications: (iiibiiay).
struct IconData {
    int width = 0;
    int height = 0;
    /// In bytes.
    int rowStride = 0;
    bool hasAlpha = false;
    int bitsPerSample = 0;
    int channels = 0;
    QByteArray pixels;

    [[nodiscard]] static IconData from(const QImage &image);
};

/// A match of KRunner's: (sssida{sv}).
struct RunnerMatch {
    QString id;
    QString text;
    QString iconName;
    int type = 0;
    double relevance = 0;
    QVariantMap properties;
};

/// An action on matches: its id, text and icon, (sss).
struct RunnerAction {
    QString id;
    QString text;
    QString iconName;
};

QDBusArgument &operator<<(QDBusArgument &argument, const SerializedIcon &icon);
const QDBusArgument &operator>>(const QDBusArgument &argument, SerializedIcon &icon);
QDBusArgument &operator<<(QDBusArgument &argument, const IconData &icon);
const QDBusArgument &operator>>(const QDBusArgument &argument, IconData &icon);
QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match);
const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match);
QDBusArgument &operator<<(QDBusArgument &argument, const RunnerAction &action);
const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerAction &action);

/// To be called before any of these is sent or received, or a list of maps.
void registerSearchTypes();

} // namespace vantrel
