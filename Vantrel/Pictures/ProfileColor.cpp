#include "Vantrel/Pictures/ProfileColor.h"

#include <array>

namespace vantrel {
namespace {

/// Red, green and blue from 0 to 1, in sRGB.
struct Levels {
    double red;
    double green;
    double blue;
};

constexpr std::array<Levels, 8> palette{{
    {0.20, 0.47, 0.96},
    {0.98, 0.42, 0.25},
    {0.15, 0.68, 0.38},
    {0.69, 0.32, 0.87},
    {0.95, 0.65, 0.10},
    {0.10, 0.65, 0.75},
    {0.90, 0.25, 0.47},
    {0.45, 0.50, 0.60},
}};

constexpr size_t indexWithoutID = 5;

} // namespace

quint64 fnv1a(QByteArrayView bytes)
{
    quint64 hash = 0xcbf29ce484222325;
    for (const char byte : bytes) {
        hash ^= static_cast<quint8>(byte);
        hash *= 0x100000001b3;
    }
    return hash;
}

QColor profileColor(const QString &id)
{
    const size_t index = id.isEmpty() ? indexWithoutID : static_cast<size_t>(fnv1a(id.toUtf8()) % palette.size());
    const Levels &levels = palette.at(index);
    // QColor::fromRgbF cuts off where it should round.
    return {qRound(levels.red * 255), qRound(levels.green * 255), qRound(levels.blue * 255)};
}

} // namespace vantrel
