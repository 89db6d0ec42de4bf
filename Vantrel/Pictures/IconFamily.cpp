#include "Vantrel/Pictures/IconFamily.h"

#include <QBuffer>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace vantrel {
namespace {

constexpr int planesSize = 16;

/// By their size. Other types exist for 16 and 32 pixels, which macOS passes over in applications.
constexpr std::array<std::pair<int, std::string_view>, 6> typesOfPNG{
    {{32, "ic11"}, {64, "ic12"}, {128, "ic07"}, {256, "ic08"}, {512, "ic09"}, {1024, "ic10"}}};

QByteArray bigEndian(qsizetype number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(static_cast<quint32>(number), bytes.data());
    return bytes;
}

/// A part of the file, or the whole: its type, its length with these eight bytes, its content.
QByteArray block(QByteArrayView type, const QByteArray &content)
{
    return type.toByteArray() + bigEndian(content.size() + 8) + content;
}

/// How often the byte at the beginning is repeated there.
qsizetype runLength(QByteArrayView bytes)
{
    return std::ranges::find_if(bytes, [&](char byte) { return byte != bytes.front(); }) - bytes.begin();
}

/// Runs of 3 to 130 equal bytes as their count plus 125 and the byte, 1 to 128 others as their count less 1 and
/// themselves.
QByteArray packed(QByteArrayView bytes)
{
    constexpr qsizetype leastRun = 3;
    constexpr qsizetype longestRun = 130;
    constexpr qsizetype longestLiteral = 128;
    QByteArray result;
    while (!bytes.isEmpty()) {
        const qsizetype run = std::min(runLength(bytes), longestRun);
        if (run >= leastRun) {
            result += static_cast<char>(run + 125);
            result += bytes.front();
            bytes = bytes.sliced(run);
            continue;
        }
        qsizetype literal = 1;
        while (literal < std::min(bytes.size(), longestLiteral) && runLength(bytes.sliced(literal)) < leastRun)
            ++literal;
        result += static_cast<char>(literal - 1);
        result += bytes.first(literal);
        bytes = bytes.sliced(literal);
    }
    return result;
}

/// The red, green and blue of all pixels, not multiplied by their alpha, and the alpha in a part of its own.
QByteArray planes(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    std::array<QByteArray, 4> channels;
    for (int y = 0; y < pixels.height(); ++y) {
        const uchar *line = pixels.constScanLine(y);
        for (int x = 0; x < pixels.width(); ++x) {
            for (QByteArray &channel : channels)
                channel += static_cast<char>(*line++);
        }
    }
    return block("is32", packed(channels[0]) + packed(channels[1]) + packed(channels[2])) + block("s8mk", channels[3]);
}

QByteArray png(const QImage &image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

} // namespace

QByteArray iconFamilyFile(const std::function<QImage(int pixels)> &draw)
{
    QByteArray elements;
    if (const QImage image = draw(planesSize); !image.isNull())
        elements += planes(image);
    for (const auto &[size, type] : typesOfPNG) {
        const QByteArray content = png(draw(size));
        if (!content.isEmpty())
            elements += block(QByteArrayView(type), content);
    }
    return elements.isEmpty() ? QByteArray() : block("icns", elements);
}

} // namespace vantrel
