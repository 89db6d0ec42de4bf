#include "VantrelKit/PropertyList.h"

#include "Tests/VantrelKit/Printing.h"
#include "Tests/VantrelKit/Samples.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QByteArray header = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                          "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                          "<plist version=\"1.0\">\n";

QByteArray written(const QString &text)
{
    const QByteArray before = header + "<dict>\n\t<key>k</key>\n\t<string>";
    const QByteArray list = propertyListXML({{u"k"_s, text}});
    EXPECT_TRUE(list.startsWith(before));
    EXPECT_TRUE(list.endsWith("</string>\n</dict>\n</plist>\n"));
    return list.mid(before.size()).chopped(27);
}

/// What the reader of another project makes of the only value in a list.
QString readByLibplist(const QByteArray &list)
{
    plist_t root = nullptr;
    plist_from_xml(list.constData(), static_cast<uint32_t>(list.size()), &root);
    const std::unique_ptr<void, decltype(&plist_free)> owner(root, &plist_free);
    uint64_t length = 0;
    const char *text = plist_get_string_ptr(plist_dict_get_item(root, "k"), &length);
    return text ? QString::fromUtf8(text, static_cast<qsizetype>(length)) : u"unreadable"_s;
}

/// What a strict reader of XML makes of it.
QString readAsXML(const QByteArray &list)
{
    QXmlStreamReader reader(list);
    QString text;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == "string"_L1)
            text = reader.readElementText();
    }
    return reader.hasError() ? reader.errorString() : text;
}

TEST(PropertyList, AnEmptyOneHasADictionary)
{
    EXPECT_EQ(propertyListXML({}), header + "<dict>\n</dict>\n</plist>\n");
}

TEST(PropertyList, EveryKindOfValueIsWrittenBelowItsKeyInTheKeysOrder)
{
    const QVariantMap inner{{u"yes"_s, true}, {u"no"_s, false}};
    const QVariantMap list{{u"z"_s, QVariantList{inner, u"text"_s}}, {u"a"_s, QStringList{u"one"_s, u"two"_s}}};
    EXPECT_EQ(propertyListXML(list), header + "<dict>\n"
                                              "\t<key>a</key>\n"
                                              "\t<array>\n"
                                              "\t\t<string>one</string>\n"
                                              "\t\t<string>two</string>\n"
                                              "\t</array>\n"
                                              "\t<key>z</key>\n"
                                              "\t<array>\n"
                                              "\t\t<dict>\n"
                                              "\t\t\t<key>no</key>\n"
                                              "\t\t\t<false/>\n"
                                              "\t\t\t<key>yes</key>\n"
                                              "\t\t\t<true/>\n"
                                              "\t\t</dict>\n"
                                              "\t\t<string>text</string>\n"
                                              "\t</array>\n"
                                              "</dict>\n"
                                              "</plist>\n");
}

TEST(PropertyList, WhatXMLTakesForItsOwnIsEscapedInValuesAndKeys)
{
    EXPECT_EQ(written(u"<a b='c'> & \"d\"]]>"_s), "&lt;a b='c'&gt; &amp; \"d\"]]&gt;");
    EXPECT_TRUE(propertyListXML({{u"<&>"_s, true}}).contains("<key>&lt;&amp;&gt;</key>"));
    EXPECT_EQ(written(u"a\tb\nc\rd"_s), "a\tb\nc&#13;d");
}

TEST(PropertyList, WhatXMLCannotHoldIsReplaced)
{
    EXPECT_EQ(written(u"a\0b\x1bz\uffff\ufffe"_s), "a\xef\xbf\xbd"
                                                   "b\xef\xbf\xbdz\xef\xbf\xbd\xef\xbf\xbd");
    for (const QString &text : test::loneSurrogates())
        EXPECT_EQ(readAsXML(propertyListXML({{u"k"_s, text}})), QString::fromUtf8(text.toUtf8()));
}

TEST(PropertyList, OtherReadersGetBackAnyText)
{
    for (const QString &text : test::oddTexts()) {
        const QByteArray list = propertyListXML({{u"k"_s, text}});
        QString expected = text;
        for (QChar &character : expected) {
            const ushort code = character.unicode();
            if ((code < 0x20 && code != '\t' && code != '\n' && code != '\r') || code >= 0xfffe)
                character = QChar::ReplacementCharacter;
        }
        EXPECT_EQ(readAsXML(list), expected);
        EXPECT_EQ(readByLibplist(list), expected);
    }
}

} // namespace
} // namespace vantrel
