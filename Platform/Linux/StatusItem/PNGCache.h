#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>

namespace vantrel {

/// Pictures as PNG files. One that was asked for since the last but one call of `startMenu` isn't encoded again.
class PNGCache {
public:
    /// What the menu that was built last didn't need is dropped.
    void startMenu();

    /// Empty for a picture without pixels.
    [[nodiscard]] QByteArray encoded(const QImage &picture);

private:
    QHash<qint64, QByteArray> current_;
    QHash<qint64, QByteArray> former_;
};

} // namespace vantrel
