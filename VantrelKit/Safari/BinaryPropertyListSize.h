#pragma once

#include <QByteArrayView>

#include <optional>

namespace vantrel {

/// What reading a binary property list costs a reader that makes a copy of an object wherever it is referred to, as
/// libplist does. A small file can refer to the same objects again and again, and so make up an enormous list.
struct BinaryPropertyListSize {
    /// How many objects there are then, and how many bytes their texts and data have.
    qsizetype objects = 0;
    qsizetype bytes = 0;

    /// None when one of these is exceeded, when lists lie deeper in each other, when a reference leads out of the file,
    /// or when a text holds a null character: libplist ends the program where it finds one in a key. Other objects that
    /// no reader would accept count as empty ones.
    [[nodiscard]] static std::optional<BinaryPropertyListSize>
    measure(QByteArrayView content, const BinaryPropertyListSize &most, int deepestNesting);

    friend bool operator==(const BinaryPropertyListSize &, const BinaryPropertyListSize &) = default;
};

} // namespace vantrel
