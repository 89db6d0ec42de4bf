#include "Vantrel/CommandLine/OrderedJson.h"

#include "Tests/VantrelKit/Samples.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(OrderedJson, ValuesAreCompactText)
{
    const std::vector<std::pair<QJsonValue, QString>> rows{
        {u"text"_s, u"\"text\""_s},
        {QString(), u"\"\""_s},
        {u"say \"hello\"\\\n\t\x1b"_s, uR"("say \"hello\"\\\n\t\u001b")"_s},
        {u"Wörk \u65e5 \U0001F600 </"_s, u"\"Wörk \u65e5 \U0001F600 </\""_s},
        {true, u"true"_s},
        {false, u"false"_s},
        {QJsonValue(), u"null"_s},
        {0, u"0"_s},
        {qint64{1234567890123}, u"1234567890123"_s},
        {QJsonArray(), u"[]"_s},
        {QJsonArray{1, u"a"_s, QJsonValue()}, u"[1,\"a\",null]"_s},
        {QJsonObject{{u"b"_s, 1}}, u"{\"b\":1}"_s},
    };
    for (const auto &[value, expected] : rows)
        EXPECT_EQ(jsonText(value), expected);
}

TEST(OrderedJson, AnyTextComesBackTheSame)
{
    for (const QString &text : test::oddTexts()) {
        const QByteArray json = '[' + jsonText(text).toUtf8() + ']';
        EXPECT_EQ(QJsonDocument::fromJson(json).array().first().toString(), text);
        EXPECT_FALSE(json.contains('\n')) << "It stays on one line.";
    }
}

TEST(OrderedJson, MembersStandInTheirOrder)
{
    EXPECT_EQ(jsonObject({}), u"{}"_s);
    EXPECT_EQ(jsonObject({{"b"_L1, jsonText(u"x"_s)}, {"a"_L1, u"null"_s}, {"c"_L1, jsonObject({{"d"_L1, u"1"_s}})}}),
              u"{\"b\":\"x\",\"a\":null,\"c\":{\"d\":1}}"_s);
}

TEST(OrderedJson, AnArrayHasAnElementALine)
{
    EXPECT_EQ(jsonArray({}), u"[]"_s);
    EXPECT_EQ(jsonArray({u"1"_s}), u"[\n1\n]"_s);
    EXPECT_EQ(jsonArray({u"{}"_s, u"\"a\""_s, u"[]"_s}), u"[\n{},\n\"a\",\n[]\n]"_s);
}

} // namespace
} // namespace vantrel
