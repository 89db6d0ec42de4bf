#include "VantrelKit/Safari/BinaryPropertyListSize.h"

#include <QtEndian>

namespace vantrel {
namespace {

constexpr qsizetype trailerSize = 32;

/// A number of one to eight bytes, the highest first; none when it isn't within the content or is above any size.
std::optional<qsizetype> numberAt(QByteArrayView content, qsizetype offset, qsizetype size)
{
    if (size < 1 || size > 8 || offset < 0 || offset > content.size() - size)
        return std::nullopt;
    quint64 number = 0;
    for (const char byte : content.sliced(offset, size))
        number = number << 8 | static_cast<unsigned char>(byte);
    constexpr quint64 highest = 0x7FFFFFFF;
    return number <= highest ? std::optional(static_cast<qsizetype>(number)) : std::nullopt;
}

/// The head of an object: its kind in the upper half of a byte, how many elements it has, and where they begin.
struct Head {
    enum class Kind : unsigned char { data = 4, ascii = 5, utf16 = 6, array = 10, set = 12, dictionary = 13 };

    Kind kind{};
    qsizetype count = 0;
    qsizetype start = 0;
};

/// A count of 15 says that the number follows as an object of its own.
std::optional<Head> headAt(QByteArrayView content, qsizetype offset)
{
    const auto marker = numberAt(content, offset, 1);
    if (!marker)
        return std::nullopt;
    Head head{static_cast<Head::Kind>(*marker >> 4), *marker & 0xF, offset + 1};
    if (head.count != 0xF || head.kind < Head::Kind::data)
        return head;
    const auto sizeMarker = numberAt(content, head.start, 1);
    if (!sizeMarker || *sizeMarker >> 4 != 1 || (*sizeMarker & 0xF) > 3)
        return std::nullopt;
    const qsizetype size = qsizetype{1} << (*sizeMarker & 0xF);
    const auto count = numberAt(content, head.start + 1, size);
    if (!count)
        return std::nullopt;
    return Head{head.kind, *count, head.start + 1 + size};
}

class Walk {
public:
    Walk(QByteArrayView content, const BinaryPropertyListSize &most, int deepestNesting)
        : content_(content),
          most_(most),
          deepestNesting_(deepestNesting)
    {
    }

    /// False when the file isn't well formed or a limit is exceeded.
    bool run()
    {
        if (content_.size() < trailerSize)
            return false;
        const qsizetype trailer = content_.size() - trailerSize;
        const auto root = numberAt(content_, trailer + 16, 8);
        const auto table = numberAt(content_, trailer + 24, 8);
        if (!root || !table)
            return false;
        offsetSize_ = static_cast<unsigned char>(content_[trailer + 6]);
        referenceSize_ = static_cast<unsigned char>(content_[trailer + 7]);
        table_ = *table;
        return visit(*root, 0);
    }

    [[nodiscard]] const BinaryPropertyListSize &size() const { return size_; }

private:
    /// Recursive, but never deeper than the lists may be.
    bool visit(qsizetype object, int depth)
    {
        if (++size_.objects > most_.objects || depth > deepestNesting_)
            return false;
        const auto offset = offsetOf(object);
        const auto head = offset ? headAt(content_, *offset) : std::nullopt;
        if (!head)
            return false;
        switch (head->kind) {
        case Head::Kind::data:
        case Head::Kind::ascii: return addBytes(head->count);
        case Head::Kind::utf16: return addBytes(head->count * 2) && !hasNullCharacter(*head);
        case Head::Kind::array:
        case Head::Kind::set: return visitReferences(*head, head->count, depth);
        case Head::Kind::dictionary: return visitReferences(*head, head->count * 2, depth);
        default: return true;
        }
    }

    bool visitReferences(const Head &head, qsizetype count, int depth)
    {
        for (qsizetype index = 0; index < count; ++index) {
            const auto object = numberAt(content_, head.start + (index * referenceSize_), referenceSize_);
            if (!object || !visit(*object, depth + 1))
                return false;
        }
        return true;
    }

    /// True as well for a text that leads out of the file.
    [[nodiscard]] bool hasNullCharacter(const Head &head) const
    {
        for (qsizetype index = 0; index < head.count; ++index) {
            if (numberAt(content_, head.start + (index * 2), 2).value_or(0) == 0)
                return true;
        }
        return false;
    }

    bool addBytes(qsizetype count)
    {
        size_.bytes += count;
        return size_.bytes <= most_.bytes;
    }

    [[nodiscard]] std::optional<qsizetype> offsetOf(qsizetype object) const
    {
        return numberAt(content_, table_ + (object * offsetSize_), offsetSize_);
    }

    QByteArrayView content_;
    BinaryPropertyListSize most_;
    int deepestNesting_;
    qsizetype table_ = 0;
    qsizetype offsetSize_ = 0;
    qsizetype referenceSize_ = 0;
    BinaryPropertyListSize size_;
};

} // namespace

std::optional<BinaryPropertyListSize>
BinaryPropertyListSize::measure(QByteArrayView content, const BinaryPropertyListSize &most, int deepestNesting)
{
    Walk walk(content, most, deepestNesting);
    return walk.run() ? std::optional(walk.size()) : std::nullopt;
}

} // namespace vantrel
