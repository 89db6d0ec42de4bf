#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace vantrel::test {

/// Writes binary property lists object by object, so that lists can be made that no program would write. Objects are
/// numbered in the order in which they are added; references have two bytes and may lead forward.
class BinaryPropertyList {
public:
    /// Each returns the object's number.
    int addText(const QString &text);
    int addAscii(const QByteArray &characters);
    int addArray(const QList<int> &objects);
    int addDictionary(const QList<int> &keys, const QList<int> &values);
    int addRaw(const QByteArray &object);

    /// The whole list, whose topmost object is this one.
    [[nodiscard]] QByteArray content(int root) const;

private:
    QList<QByteArray> objects_;
};

/// A number of so many bytes, the highest first.
[[nodiscard]] QByteArray bigEndianNumber(quint64 number, int size);

} // namespace vantrel::test
