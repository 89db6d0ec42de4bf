#include "VantrelKit/JsonDecoding.h"

#include "Tests/VantrelKit/Samples.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = DecodingError::Kind;

const QString name = u"member"_s;

QJsonObject holding(const QJsonValue &value)
{
    return {{u"other"_s, 1}, {name, value}};
}

QJsonObject parsed(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json.toStdString();
    return document.object();
}

/// One value of each type.
std::vector<QJsonValue> valuesOfAllTypes()
{
    return {QJsonValue(QJsonValue::Null), QJsonValue(true), QJsonValue(1),
            QJsonValue(u"text"_s),        QJsonArray(),     QJsonObject()};
}

template <typename Result>
std::optional<Kind> kindOf(const Result &result)
{
    return result ? std::nullopt : std::optional(result.error().kind);
}

Kind kindOfMismatch(const QJsonValue &value)
{
    return value.isNull() ? Kind::valueNotFound : Kind::typeMismatch;
}

TEST(JsonDecoding, OnlyAnObjectIsAnObject)
{
    EXPECT_EQ(json::object(holding(2)).value(), holding(2));
    for (const QJsonValue &value : valuesOfAllTypes()) {
        if (!value.isObject()) {
            EXPECT_EQ(kindOf(json::object(value)), kindOfMismatch(value));
        }
    }
    EXPECT_EQ(kindOf(json::object(QJsonValue(QJsonValue::Undefined))), Kind::typeMismatch);
}

TEST(JsonDecoding, AMemberIsWhatStandsUnderItsName)
{
    EXPECT_EQ(json::member(holding(7), name).value(), QJsonValue(7));
    EXPECT_EQ(kindOf(json::member(holding(7), u"Member"_s)), Kind::keyNotFound);
    EXPECT_EQ(kindOf(json::member({}, name)), Kind::keyNotFound);
}

TEST(JsonDecoding, AMemberThatIsNullIsHandedOn)
{
    EXPECT_EQ(json::member(holding(QJsonValue::Null), name), QJsonValue(QJsonValue::Null));
}

TEST(JsonDecoding, OnlyAStringIsAString)
{
    for (const QString &text : QStringList(u""_s) + test::oddTexts())
        EXPECT_EQ(json::string(holding(text), name).value(), text);
    for (const QJsonValue &value : valuesOfAllTypes()) {
        if (!value.isString()) {
            EXPECT_EQ(kindOf(json::string(holding(value), name)), kindOfMismatch(value));
        }
    }
    EXPECT_EQ(kindOf(json::string({}, name)), Kind::keyNotFound);
}

TEST(JsonDecoding, AValueOfItsOwnMayBeAStringToo)
{
    EXPECT_EQ(json::string(QJsonValue(u"Work"_s)).value(), u"Work"_s);
    for (const QJsonValue &value : valuesOfAllTypes()) {
        if (value.isString())
            continue;
        EXPECT_EQ(kindOf(json::string(value)), kindOfMismatch(value));
        EXPECT_EQ(json::string(value).error().path, QString());
    }
}

TEST(JsonDecoding, OnlyAnArrayIsAnArray)
{
    EXPECT_EQ(json::array(holding(QJsonArray{1, u"x"_s}), name).value(), QJsonArray({1, u"x"_s}));
    EXPECT_EQ(json::array(holding(QJsonArray()), name).value(), QJsonArray());
    for (const QJsonValue &value : valuesOfAllTypes()) {
        if (value.isArray())
            continue;
        EXPECT_EQ(kindOf(json::array(holding(value), name)), kindOfMismatch(value));
        EXPECT_EQ(json::array(holding(value), name).error().path, name);
    }
    EXPECT_EQ(kindOf(json::array({}, name)), Kind::keyNotFound);
}

TEST(JsonDecoding, AnIntegerIsAWholeNumberOf64Bits)
{
    const std::vector<std::pair<QByteArray, qint64>> rows{
        {"0", 0},
        {"1", 1},
        {"-1", -1},
        {"3.0", 3},
        {"1e3", 1000},
        {"9007199254740993", 9007199254740993},
        {"9223372036854775807", std::numeric_limits<qint64>::max()},
        {"-9223372036854775808", std::numeric_limits<qint64>::min()},
    };
    for (const auto &[text, number] : rows)
        EXPECT_EQ(json::integer(parsed("{\"member\": " + text + "}"), name).value_or(42), number) << text.toStdString();
}

TEST(JsonDecoding, ANumberWithAFractionOrBeyond64BitsIsNoInteger)
{
    for (const QByteArray text :
         {"0.5", "1.5", "-1.5", "1e-3", "9223372036854775808", "-9223372036854777000", "1e300"}) {
        const auto result = json::integer(parsed("{\"member\": " + text + "}"), name);
        EXPECT_EQ(kindOf(result), Kind::dataCorrupted) << text.toStdString();
    }
}

TEST(JsonDecoding, NothingButANumberIsAnInteger)
{
    for (const QJsonValue &value : valuesOfAllTypes()) {
        if (!value.isDouble()) {
            EXPECT_EQ(kindOf(json::integer(holding(value), name)), kindOfMismatch(value));
        }
    }
    EXPECT_EQ(kindOf(json::integer(holding(u"1"_s), name)), Kind::typeMismatch);
    EXPECT_EQ(kindOf(json::integer({}, name)), Kind::keyNotFound);
}

TEST(JsonDecoding, BytesAreStandardBase64)
{
    const std::vector<std::pair<QString, QByteArray>> rows{
        {u""_s, ""},
        {u"QQ=="_s, "A"},
        {u"QUI="_s, "AB"},
        {u"QUJD"_s, "ABC"},
        {u"+/+/"_s, "\xfb\xff\xbf"},
        {u"AAAA"_s, QByteArray(3, '\0')},
    };
    for (const auto &[text, bytes] : rows)
        EXPECT_EQ(json::optionalBytes(holding(text), name).value(), bytes) << text.toStdString();
}

TEST(JsonDecoding, BytesMissingOrNullAreNone)
{
    EXPECT_EQ(json::optionalBytes({}, name).value(), std::nullopt);
    EXPECT_EQ(json::optionalBytes(holding(QJsonValue::Null), name).value(), std::nullopt);
}

TEST(JsonDecoding, DamagedBase64IsAnErrorAndNotEmpty)
{
    for (const QString &text : {u"Q"_s, u"QQ"_s, u"QQ="_s, u"Q==="_s, u"=QQQ"_s, u"QQ==QQ=="_s, u"QU I="_s, u"QUJD\n"_s,
                                u"-_-_"_s, u"===="_s, u"QUé="_s, u"\U0001F600"_s, u"!!!!"_s})
        EXPECT_EQ(kindOf(json::optionalBytes(holding(text), name)), Kind::dataCorrupted) << text.toStdString();
}

TEST(JsonDecoding, BytesOfAnotherTypeAreAMismatch)
{
    for (const QJsonValue &value : valuesOfAllTypes()) {
        if (!value.isString() && !value.isNull()) {
            EXPECT_EQ(kindOf(json::optionalBytes(holding(value), name)), Kind::typeMismatch);
        }
    }
}

TEST(JsonDecoding, AnErrorNamesTheMember)
{
    EXPECT_EQ(json::string(holding(1), name).error().path, name);
    EXPECT_EQ(json::integer(holding(u"1"_s), name).error().path, name);
    EXPECT_EQ(json::integer(holding(1.5), name).error().path, name);
    EXPECT_EQ(json::optionalBytes(holding(1), name).error().path, name);
    EXPECT_EQ(json::optionalBytes(holding(u"Q"_s), name).error().path, name);
    EXPECT_TRUE(json::member({}, name).error().message().contains(name));
}

TEST(JsonDecoding, AnErrorSaysWhatWasThere)
{
    const QStringList found{u"null"_s, u"a boolean"_s, u"a number"_s, u"a string"_s, u"an array"_s, u"an object"_s};
    const std::vector<QJsonValue> values = valuesOfAllTypes();
    for (size_t index = 0; index < values.size(); ++index) {
        const QString wanted = values[index].isString() ? u"a whole number"_s : u"a string"_s;
        const DecodingError error = values[index].isString() ? json::integer(holding(values[index]), name).error()
                                                             : json::string(holding(values[index]), name).error();
        EXPECT_EQ(error.debugDescription,
                  u"Expected %1 but found %2."_s.arg(wanted, found[static_cast<qsizetype>(index)]));
    }
    EXPECT_EQ(json::object(QJsonValue(QJsonValue::Undefined)).error().debugDescription,
              u"Expected an object but found nothing."_s);
}

} // namespace
} // namespace vantrel
