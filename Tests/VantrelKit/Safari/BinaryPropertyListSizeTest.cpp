#include "VantrelKit/Safari/BinaryPropertyListSize.h"

#include "Tests/VantrelKit/Safari/BinaryPropertyList.h"
#include "Tests/VantrelKit/Safari/SafariPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Size = std::optional<BinaryPropertyListSize>;

Size measured(const QByteArray &content, const BinaryPropertyListSize &most = {1000, 1000}, int deepest = 8)
{
    return BinaryPropertyListSize::measure(content, most, deepest);
}

/// Lists in each other, the innermost empty.
QByteArray nested(int depth)
{
    test::BinaryPropertyList list;
    int object = list.addArray({});
    for (int level = 0; level < depth; ++level)
        object = list.addArray({object});
    return list.content(object);
}

/// Lists in each other, each of which holds the next one twice.
QByteArray doubled(int depth)
{
    test::BinaryPropertyList list;
    int object = list.addArray({});
    for (int level = 0; level < depth; ++level)
        object = list.addArray({object, object});
    return list.content(object);
}

TEST(BinaryPropertyListSize, CountsObjectsAndTheBytesOfTexts)
{
    test::BinaryPropertyList list;
    const int key = list.addAscii("abc");
    const int longText = list.addAscii(QByteArray(20, 'x'));
    const int text = list.addText(u"\u7DE8\u96C6"_s);
    const int data = list.addRaw("\x42xy");
    const int yes = list.addRaw("\x09");
    const int number = list.addRaw("\x11\x01\x02");
    const int array = list.addArray({text, data, yes, number});
    EXPECT_EQ(measured(list.content(yes)), (Size{{1, 0}}));
    EXPECT_EQ(measured(list.content(key)), (Size{{1, 3}}));
    EXPECT_EQ(measured(list.content(longText)), (Size{{1, 20}}));
    EXPECT_EQ(measured(list.content(text)), (Size{{1, 4}}));
    EXPECT_EQ(measured(list.content(array)), (Size{{5, 6}}));
    const int dictionary = list.addDictionary({key, longText}, {array, key});
    EXPECT_EQ(measured(list.content(dictionary)), (Size{{9, 32}}));
}

TEST(BinaryPropertyListSize, CountsSharedObjectsEachTime)
{
    EXPECT_EQ(measured(doubled(0)), (Size{{1, 0}}));
    EXPECT_EQ(measured(doubled(3)), (Size{{15, 0}}));
    test::BinaryPropertyList list;
    const int text = list.addAscii("abcd");
    EXPECT_EQ(measured(list.content(list.addArray({text, text, text}))), (Size{{4, 12}}));
}

TEST(BinaryPropertyListSize, IsNoneBeyondItsLimits)
{
    EXPECT_TRUE(measured(doubled(3), {15, 0}));
    EXPECT_FALSE(measured(doubled(3), {14, 0}));
    EXPECT_FALSE(measured(doubled(60), {100'000, 0}, 100));
    EXPECT_TRUE(measured(nested(8)));
    EXPECT_FALSE(measured(nested(9)));
    EXPECT_FALSE(measured(nested(60'000)));

    test::BinaryPropertyList list;
    const int text = list.addAscii("abcd");
    const int array = list.addArray({text, text});
    EXPECT_TRUE(measured(list.content(array), {3, 8}));
    EXPECT_FALSE(measured(list.content(array), {3, 7}));
}

TEST(BinaryPropertyListSize, IsNoneWhereAnObjectHoldsItself)
{
    test::BinaryPropertyList list;
    EXPECT_FALSE(measured(list.content(list.addArray({0}))));
    const int next = list.addArray({2});
    list.addArray({1});
    EXPECT_FALSE(measured(list.content(next)));
}

TEST(BinaryPropertyListSize, IsNoneWhereAReferenceLeadsOutOfTheFile)
{
    test::BinaryPropertyList list;
    EXPECT_FALSE(measured(list.content(list.addArray({60'000}))));
    EXPECT_FALSE(measured(list.content(60'000)));
    EXPECT_FALSE(measured(list.content(list.addRaw("\xAF\x12\xFF\xFF\xFF\xFF"))));
    EXPECT_FALSE(measured(list.content(list.addRaw("\xDF\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"))));
    EXPECT_FALSE(measured(list.content(list.addRaw("\x5F\x12\x7F\xFF\xFF\xFF"))));
    EXPECT_FALSE(measured(list.content(list.addRaw("\x5F\x14"))));
    EXPECT_FALSE(measured(list.content(list.addRaw("\x5F\x55"))));
}

TEST(BinaryPropertyListSize, IsNoneWhereATextHoldsANullCharacter)
{
    test::BinaryPropertyList list;
    EXPECT_FALSE(measured(list.content(list.addText(u"a\0b"_s))));
    EXPECT_FALSE(measured(list.content(list.addText(u"\0"_s))));
    EXPECT_FALSE(measured(list.content(list.addText(u"a"_s.repeated(100) + QChar()))));
    EXPECT_TRUE(measured(list.content(list.addText(u"\u0100\u0001"_s))));
}

TEST(BinaryPropertyListSize, IsNoneWhereNumbersHaveNoSaneSize)
{
    test::BinaryPropertyList list;
    const QByteArray content = list.content(list.addArray({list.addAscii("a")}));
    EXPECT_TRUE(measured(content));
    const qsizetype trailer = content.size() - 32;
    for (const char size : {'\x00', '\x09', '\x7F', '\x80', '\xFF'}) {
        for (const qsizetype place : {trailer + 6, trailer + 7}) {
            QByteArray damaged = content;
            damaged[place] = size;
            EXPECT_FALSE(measured(damaged)) << place << ": " << static_cast<int>(size);
        }
    }
}

TEST(BinaryPropertyListSize, NoDamagedByteLeadsAstray)
{
    test::BinaryPropertyList list;
    const int key = list.addAscii("key");
    const int text = list.addText(u"text"_s);
    const QByteArray content = list.content(list.addDictionary({key}, {list.addArray({text, key})}));
    qsizetype refused = 0;
    for (qsizetype place = 0; place < content.size(); ++place) {
        EXPECT_FALSE(measured(content.first(place)));
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray damaged = content;
            damaged[place] = static_cast<char>(byte);
            const Size size = measured(damaged);
            refused += size ? 0 : 1;
            EXPECT_LE(size.value_or(BinaryPropertyListSize()).objects, 1000);
        }
    }
    EXPECT_GT(refused, 1000);
}

} // namespace
} // namespace vantrel
