#include "Tests/VantrelKit/Safari/BinaryPropertyList.h"

#include <QStringEncoder>

namespace vantrel::test {
namespace {

constexpr int referenceSize = 2;
constexpr int offsetSize = 4;

/// A kind and a count; counts beyond 14 are numbers behind the head, here of four bytes.
QByteArray head(unsigned int kind, qsizetype count)
{
    if (count < 15)
        return bigEndianNumber(kind << 4 | static_cast<unsigned int>(count), 1);
    return bigEndianNumber(kind << 4 | 15, 1) + bigEndianNumber(0x12, 1) +
           bigEndianNumber(static_cast<quint64>(count), 4);
}

QByteArray references(const QList<int> &objects)
{
    QByteArray bytes;
    for (const int object : objects)
        bytes += bigEndianNumber(static_cast<quint64>(object), referenceSize);
    return bytes;
}

} // namespace

QByteArray bigEndianNumber(quint64 number, int size)
{
    QByteArray bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(number >> shift & 0xFF));
    return bytes;
}

int BinaryPropertyList::addText(const QString &text)
{
    QStringEncoder encoder(QStringEncoder::Utf16BE);
    const QByteArray characters = encoder.encode(text);
    return addRaw(head(6, text.size()) + characters);
}

int BinaryPropertyList::addAscii(const QByteArray &characters)
{
    return addRaw(head(5, characters.size()) + characters);
}

int BinaryPropertyList::addArray(const QList<int> &objects)
{
    return addRaw(head(10, objects.size()) + references(objects));
}

int BinaryPropertyList::addDictionary(const QList<int> &keys, const QList<int> &values)
{
    return addRaw(head(13, keys.size()) + references(keys) + references(values));
}

int BinaryPropertyList::addRaw(const QByteArray &object)
{
    objects_.append(object);
    return static_cast<int>(objects_.size() - 1);
}

QByteArray BinaryPropertyList::content(int root) const
{
    QByteArray content = "bplist00";
    QByteArray offsets;
    for (const QByteArray &object : objects_) {
        offsets += bigEndianNumber(static_cast<quint64>(content.size()), offsetSize);
        content += object;
    }
    const auto table = static_cast<quint64>(content.size());
    return content + offsets + QByteArray(6, '\0') + bigEndianNumber(offsetSize, 1) +
           bigEndianNumber(referenceSize, 1) + bigEndianNumber(static_cast<quint64>(objects_.size()), 8) +
           bigEndianNumber(static_cast<quint64>(root), 8) + bigEndianNumber(table, 8);
}

} // namespace vantrel::test
