#include "VantrelKit/Safari/StringsPropertyList.h"

#include "Tests/VantrelKit/Safari/BinaryPropertyList.h"
#include "Tests/VantrelKit/Safari/StringsTexts.h"

#include <gtest/gtest.h>

#include <chrono>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using test::shown;
using namespace std::chrono_literals;

const QString notXml = u"It isn't a property list from beginning to end"_s;
const QString damaged = u"The binary property list is damaged or refers to more than it may hold"_s;

/// A property list whose dictionary holds these elements.
QByteArray dictionary(const QByteArray &elements)
{
    return "<plist version=\"1.0\"><dict>" + elements + "</dict></plist>";
}

QByteArray entry(const QByteArray &key, const QByteArray &text)
{
    return "<key>" + key + "</key><string>" + text + "</string>";
}

QString xml(const QByteArray &content)
{
    return shown(parseXmlStrings(content));
}

QString binary(const QByteArray &content)
{
    return shown(parseBinaryStrings(content));
}

/// A binary list with these texts, and with one key more for an object that is written in this way.
QByteArray binaryWith(const QByteArray &object)
{
    test::BinaryPropertyList list;
    const int key = list.addAscii("a");
    const int otherKey = list.addAscii("b");
    const int other = list.addRaw(object);
    return list.content(list.addDictionary({key, otherKey}, {key, other}));
}

TEST(StringsPropertyList, XmlIsReadToTexts)
{
    const std::vector<std::pair<QByteArray, QString>> rows{
        {dictionary(""), u""_s},
        {"<dict><key>a</key><string>b</string></dict>", u"a=b"_s},
        {dictionary(entry("a", "b") + "\n" + entry("c", " d\n")), u"a=b;c= d\n"_s},
        {dictionary(entry("New %@ Window", "\xD9\x85 %1$@")), u"New %@ Window=\u0645 %1$@"_s},
        {dictionary(entry("a&amp;b", "&lt;&gt;&quot;&apos;&#228;&#x7DE8;")), u"a&b=<>\"'ä\u7DE8"_s},
        {dictionary(entry("a", "<![CDATA[<b>&amp;]]>c")), u"a=<b>&amp;c"_s},
        {dictionary(entry("a", "b<!-- c -->d")), u"a=bd"_s},
        {dictionary("<key>a</key><string/>"), u"a="_s},
        {dictionary("<key>a</key><string></string>"), u"a="_s},
        {dictionary(entry("a", "b") + entry("a", "c")), u"a=c"_s},
        {dictionary(entry("a", "&#xD800;")), u"a=\uFFFD\uFFFD\uFFFD"_s},
        {"<?xml version=\"1.0\"?><!DOCTYPE plist PUBLIC \"-//X//DTD PLIST 1.0//EN\" \"http://x/y.dtd\"><!-- c -->" +
             dictionary(entry("a", "b")),
         u"a=b"_s},
    };
    for (const auto &[content, result] : rows)
        EXPECT_EQ(xml(content), result) << content.toStdString();
}

TEST(StringsPropertyList, ValuesOfXmlThatAreNoTextsArePassedOver)
{
    for (const QByteArray value : {"<true/>", "<integer>1</integer>", "<real>1.5</real>", "<data>AAAA</data>",
                                   "<date>2001-01-01T00:00:00Z</date>", "<array><string>x</string></array>",
                                   "<dict><key>x</key><string>y</string></dict>"})
        EXPECT_EQ(xml(dictionary("<key>o</key>" + value + entry("a", "b"))), u"a=b;o?"_s) << value.toStdString();
}

TEST(StringsPropertyList, XmlThatHoldsNoDictionaryIsAnError)
{
    const std::vector<std::pair<QByteArray, QString>> rows{
        {"", notXml},
        {"<", notXml},
        {"<plist/>", notXml},
        {"<plist></plist>", notXml},
        {"<html><body/></html>", notXml},
        {"<plist><array/></plist>", u"The property list holds no dictionary"_s},
        {"<plist><string>a</string></plist>", u"The property list holds no dictionary"_s},
        {"<plist><dict><key>a</key></plist>", notXml},
        {"<plist><dict><string>a</string></dict></plist>", notXml},
        {"<plist><dict><key>a</key><string>b</string>", notXml},
        {"<plist><dict><key>a</key><string>b</dict></plist>", notXml},
        {dictionary(entry("a", "&unknown;")), notXml},
        {dictionary(entry("a", "&amp")), notXml},
        {dictionary(entry("a", QByteArray("b\0c", 3))), u"It isn't an XML property list from beginning to end"_s},
    };
    for (const auto &[content, result] : rows)
        EXPECT_EQ(xml(content), result) << content.toStdString();
}

TEST(StringsPropertyList, NoEntityIsReadFromElsewhere)
{
    EXPECT_EQ(xml("<!DOCTYPE plist [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>" + dictionary(entry("a", "&x;"))),
              notXml);
}

TEST(StringsPropertyList, ThereAreOnlySoManyListsInXml)
{
    const auto nested = [](qsizetype depth) {
        return dictionary("<key>a</key>" + QByteArray("<array>").repeated(depth) +
                          QByteArray("</array>").repeated(depth));
    };
    EXPECT_EQ(xml(nested(StringsFile::deepestNesting - 1)), u"a?"_s);
    EXPECT_EQ(xml(nested(StringsFile::deepestNesting)), u"There are more than 32 lists and dictionaries"_s);
    EXPECT_EQ(xml(nested(10'000)), u"There are more than 32 lists and dictionaries"_s);
    EXPECT_EQ(xml(QByteArray("<dict>").repeated(10'000)), u"There are more than 32 lists and dictionaries"_s);
    EXPECT_EQ(xml(QByteArray("<dict ><key>a</key>").repeated(10'000)),
              u"There are more than 32 lists and dictionaries"_s);
}

TEST(StringsPropertyList, ThereAreOnlySoManyKeysInXml)
{
    QByteArray entries;
    for (qsizetype key = 0; key < mostXmlKeys; ++key)
        entries += entry(QByteArray::number(key), "x");
    const auto file = parseXmlStrings(dictionary(entries));
    ASSERT_TRUE(file) << file.error().message().toStdString();
    EXPECT_EQ(file->texts.size(), mostXmlKeys);
    EXPECT_EQ(xml(dictionary(entries + entry("another", "x"))), u"There are more than 10000 keys"_s);
    EXPECT_EQ(xml(dictionary("<key>a</key><array>" + QByteArray("<true/>").repeated(100'000) + "</array>")),
              u"There are more than 80000 tags"_s);
}

TEST(StringsPropertyList, LongTextsOfEntitiesAreAnError)
{
    EXPECT_EQ(xml(dictionary(entry("a", QByteArray("&amp;").repeated(1000)))), u"a="_s + QString(1000, u'&'));
    EXPECT_EQ(xml(dictionary(entry("a", QByteArray("&amp;").repeated(800'000)))),
              u"There are too many entities in one text"_s);
    EXPECT_EQ(xml(dictionary(entry("a", QByteArray(4'000'000, 'x')))), u"a="_s + QString(4'000'000, u'x'));
}

/// Keys that libplist's hash, h = 33 h + c, doesn't tell apart: "Ez" and "FY" are the same to it.
QByteArray collidingKey(unsigned int number)
{
    QByteArray key;
    for (int bit = 0; bit < 15; ++bit)
        key += (number >> bit & 1) != 0 ? "Ez" : "FY";
    return key;
}

TEST(StringsPropertyList, KeysThatCollideTakeNotTooLong)
{
    QByteArray entries;
    for (unsigned int key = 0; key < mostXmlKeys; ++key)
        entries += entry(collidingKey(key), "x");
    const auto start = std::chrono::steady_clock::now();
    const auto file = parseXmlStrings(dictionary(entries));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 30s);
    ASSERT_TRUE(file) << file.error().message().toStdString();
    EXPECT_EQ(file->texts.size(), mostXmlKeys);
}

TEST(StringsPropertyList, KeysThatComeAgainTakeNotTooLong)
{
    QByteArray entries;
    for (qsizetype key = 0; key < mostXmlKeys / 2; ++key)
        entries += entry(QByteArray::number(key), "x");
    const QByteArray last = entry(QByteArray::number(mostXmlKeys / 2 - 1), "y");
    const auto start = std::chrono::steady_clock::now();
    const auto file = parseXmlStrings(dictionary(entries + last.repeated(mostXmlKeys / 2)));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 30s);
    ASSERT_TRUE(file) << file.error().message().toStdString();
    EXPECT_EQ(file->texts.value(QString::number(mostXmlKeys / 2 - 1)), u"y"_s);
}

TEST(StringsPropertyList, BinaryIsReadToTexts)
{
    test::BinaryPropertyList list;
    const int ascii = list.addAscii("New %@ Window");
    const int longText = list.addText(u"\u7DE8\u96C6\U0001F600"_s.repeated(10));
    const int empty = list.addAscii("");
    EXPECT_EQ(binary(list.content(list.addDictionary({}, {}))), u""_s);
    EXPECT_EQ(binary(list.content(list.addDictionary({ascii, longText, empty}, {longText, empty, ascii}))),
              u"=New %@ Window;New %@ Window="_s + u"\u7DE8\u96C6\U0001F600"_s.repeated(10) + u';' +
                  u"\u7DE8\u96C6\U0001F600"_s.repeated(10) + u'=');
    EXPECT_EQ(binary(list.content(list.addDictionary({ascii, ascii}, {longText, empty}))), u"New %@ Window="_s);
}

TEST(StringsPropertyList, ValuesOfBinaryThatAreNoTextsArePassedOver)
{
    using namespace std::string_literals;
    for (const std::string &object : {"\x08"s, "\x09"s, "\x10\x01"s, "\x13\0\0\0\0\0\0\0\x01"s, "\x22\0\0\0\0"s,
                                      "\x33\0\0\0\0\0\0\0\0"s, "\x42xy"s, "\x80\x01"s, "\xA0"s, "\xA1\0\0"s, "\xD0"s})
        EXPECT_EQ(binary(binaryWith(QByteArray::fromStdString(object))), u"a=a;b?"_s)
            << QByteArray::fromStdString(object).toHex().toStdString();
}

TEST(StringsPropertyList, BinaryThatHoldsNoDictionaryIsAnError)
{
    test::BinaryPropertyList list;
    const int text = list.addAscii("a");
    EXPECT_EQ(binary(list.content(text)), u"The property list holds no dictionary"_s);
    EXPECT_EQ(binary(list.content(list.addArray({text}))), u"The property list holds no dictionary"_s);
    const int dictionary = list.addDictionary({text}, {text});
    EXPECT_EQ(binary(list.content(dictionary)), u"a=a"_s);
    EXPECT_EQ(binary("bplist00"), damaged);
    EXPECT_EQ(binary("bplist15" + list.content(dictionary).sliced(8)), notXml);
    EXPECT_EQ(binary(binaryWith("\x70")), notXml);
    EXPECT_EQ(binary(list.content(list.addDictionary({list.addArray({})}, {text}))), notXml);
}

TEST(StringsPropertyList, ANullCharacterInABinaryTextIsAnError)
{
    test::BinaryPropertyList list;
    const int key = list.addAscii("a");
    const int text = list.addText(u"a\0b"_s);
    EXPECT_EQ(binary(list.content(list.addDictionary({text}, {key}))), damaged);
    EXPECT_EQ(binary(list.content(list.addDictionary({key}, {text}))), damaged);
}

TEST(StringsPropertyList, ADateOfXmlMayBeNonsense)
{
    for (const QByteArray date : {"", "x", "1-99999999-01T00:00:00Z", "9000000000000000000-01-01T", "-1-1-1T1:1:1Z",
                                  "2001-01-01T00:00:00Z2001-01-01T00:00:00Z", "2001-<!-- -->01-01T00:00:00Z"})
        EXPECT_EQ(xml(dictionary("<key>a</key><date>" + date + "</date>")), u"a?"_s) << date.toStdString();
}

TEST(StringsPropertyList, ASmallFileThatRefersToMuchIsAnError)
{
    test::BinaryPropertyList list;
    const int key = list.addAscii("a");
    int object = list.addArray({key, key});
    for (int level = 0; level < 25; ++level)
        object = list.addArray({object, object});
    EXPECT_EQ(binary(list.content(list.addDictionary({key}, {object}))), damaged);

    test::BinaryPropertyList texts;
    const int longText = texts.addAscii(QByteArray(1'000'000, 'x'));
    EXPECT_EQ(binary(texts.content(texts.addDictionary({longText}, {texts.addArray(QList<int>(1000, longText))}))),
              damaged);

    test::BinaryPropertyList loop;
    const int loopKey = loop.addAscii("a");
    EXPECT_EQ(binary(loop.content(loop.addDictionary({loopKey}, {1}))), damaged);
}

TEST(StringsPropertyList, BinaryListsLieInEachOtherOnlySoDeep)
{
    const auto nested = [](int depth) {
        test::BinaryPropertyList list;
        const int key = list.addAscii("a");
        int object = list.addArray({});
        for (int level = 2; level < depth; ++level)
            object = list.addArray({object});
        return list.content(list.addDictionary({key}, {object}));
    };
    EXPECT_EQ(binary(nested(StringsFile::deepestNesting)), u"a?"_s);
    EXPECT_EQ(binary(nested(StringsFile::deepestNesting + 2)), damaged);
    EXPECT_EQ(binary(nested(60'000)), damaged);
}

TEST(StringsPropertyList, ThereAreOnlySoManyKeysInBinary)
{
    test::BinaryPropertyList list;
    QList<int> keys;
    for (qsizetype key = 0; key < StringsFile::mostKeys; ++key)
        keys.append(list.addAscii(QByteArray::number(key)));
    const auto file = parseBinaryStrings(list.content(list.addDictionary(keys, keys)));
    ASSERT_TRUE(file) << file.error().message().toStdString();
    EXPECT_EQ(file->texts.size(), StringsFile::mostKeys);
    keys.append(list.addAscii("another"));
    EXPECT_EQ(binary(list.content(list.addDictionary(keys, keys))), u"There are more than 20000 keys"_s);
}

TEST(StringsPropertyList, NoDamagedByteLeadsAstray)
{
    test::BinaryPropertyList list;
    const int key = list.addAscii("key");
    const int text = list.addText(u"text"_s);
    const int array = list.addArray({text, list.addRaw("\x42xy"), list.addRaw("\x10\x01")});
    const QByteArray content = list.content(list.addDictionary({key, text}, {array, key}));
    EXPECT_EQ(binary(content), u"key?;text=key"_s);
    qsizetype refused = 0;
    for (qsizetype place = 0; place < content.size(); ++place) {
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray changed = content;
            changed[place] = static_cast<char>(byte);
            refused += parseBinaryStrings(changed) ? 0 : 1;
        }
    }
    EXPECT_GT(refused, 1000);
    for (qsizetype size = 0; size < content.size(); ++size)
        EXPECT_FALSE(parseBinaryStrings(content.first(size)));
}

} // namespace
} // namespace vantrel
