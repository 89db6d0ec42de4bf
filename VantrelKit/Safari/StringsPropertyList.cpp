#include "VantrelKit/Safari/StringsPropertyList.h"

#include "VantrelKit/Safari/BinaryPropertyListSize.h"

#include <plist/plist.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct PropertyListDeleter {
    void operator()(void *list) const { plist_free(list); }
};
using PropertyList = std::unique_ptr<void, PropertyListDeleter>;

/// For memory of libplist that is given back with free().
struct MemoryDeleter {
    void operator()(void *memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<void, MemoryDeleter>;
using Characters = std::unique_ptr<char, MemoryDeleter>;

std::unexpected<StringsFileError> failure(const QString &reason)
{
    return std::unexpected(StringsFileError{reason});
}

QString textOf(plist_t value)
{
    uint64_t size = 0;
    const char *const characters = plist_get_string_ptr(value, &size);
    return QString::fromUtf8(characters, static_cast<qsizetype>(size));
}

std::expected<StringsFile, StringsFileError> textsOf(plist_t dictionary)
{
    StringsFile file;
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(dictionary, &rawIterator);
    const Memory iterator(rawIterator);
    while (true) {
        char *rawKey = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dictionary, iterator.get(), &rawKey, &value);
        const Characters keyCharacters(rawKey);
        if (!keyCharacters || !value)
            return file;
        const QString key = QString::fromUtf8(keyCharacters.get());
        const bool isText = plist_get_node_type(value) == PLIST_STRING;
        if (!(isText ? file.setText(key, textOf(value)) : file.setOther(key)))
            return failure(u"There are more than %1 keys"_s.arg(StringsFile::mostKeys));
    }
}

using Reader = void (*)(const char *, uint32_t, plist_t *);

std::expected<StringsFile, StringsFileError> parsed(const QByteArray &content, Reader reader)
{
    plist_t rawList = nullptr;
    reader(content.constData(), static_cast<uint32_t>(content.size()), &rawList);
    const PropertyList list(rawList);
    if (!list)
        return failure(u"It isn't a property list from beginning to end"_s);
    if (plist_get_node_type(list.get()) != PLIST_DICT)
        return failure(u"The property list holds no dictionary"_s);
    return textsOf(list.get());
}

/// How many bytes libplist moves to put characters in the place of entities: for each one, all that follows it up to
/// the next tag.
qsizetype bytesMoved(const QByteArray &xml)
{
    qsizetype sum = 0;
    for (qsizetype start = 0; start < xml.size();) {
        const qsizetype tag = xml.indexOf('<', start);
        const qsizetype end = tag < 0 ? xml.size() : tag;
        sum += (end - start) * QByteArrayView(xml).sliced(start, end - start).count('&');
        start = end + 1;
    }
    return sum;
}

/// Looks for names wherever they stand, in comments as well: that may refuse a list that libplist could read, but lets
/// none pass that it can't bear. It takes quadratic time for keys and for entities, and a stack as deep as lists are.
std::optional<QString> excessOf(const QByteArray &xml)
{
    constexpr qsizetype mostTags = 8 * mostXmlKeys;
    constexpr qsizetype mostBytesMoved = qsizetype{256} * 1024 * 1024;
    if (xml.count('<') > mostTags)
        return u"There are more than %1 tags"_s.arg(mostTags);
    if (xml.count("<key") > mostXmlKeys)
        return u"There are more than %1 keys"_s.arg(mostXmlKeys);
    if (xml.count("<dict") + xml.count("<array") > StringsFile::deepestNesting)
        return u"There are more than %1 lists and dictionaries"_s.arg(StringsFile::deepestNesting);
    if (bytesMoved(xml) > mostBytesMoved)
        return u"There are too many entities in one text"_s;
    return std::nullopt;
}

} // namespace

std::expected<StringsFile, StringsFileError> parseXmlStrings(const QByteArray &content)
{
    if (content.size() > StringsFile::largestSize || content.contains('\0'))
        return failure(u"It isn't an XML property list from beginning to end"_s);
    if (const auto excess = excessOf(content))
        return failure(*excess);
    return parsed(content, plist_from_xml);
}

std::expected<StringsFile, StringsFileError> parseBinaryStrings(const QByteArray &content)
{
    // A key and a value each, some lists among them, and texts that several keys share.
    constexpr BinaryPropertyListSize most{.objects = 4 * StringsFile::mostKeys, .bytes = 2 * StringsFile::largestSize};
    if (!BinaryPropertyListSize::measure(content, most, StringsFile::deepestNesting))
        return failure(u"The binary property list is damaged or refers to more than it may hold"_s);
    return parsed(content, plist_from_bin);
}

} // namespace vantrel
