#include "VantrelKit/JsonDecoding.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace vantrel::json {
namespace {

using Kind = DecodingError::Kind;

QString typeName(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null: return u"null"_s;
    case QJsonValue::Bool: return u"a boolean"_s;
    case QJsonValue::Double: return u"a number"_s;
    case QJsonValue::String: return u"a string"_s;
    case QJsonValue::Array: return u"an array"_s;
    case QJsonValue::Object: return u"an object"_s;
    case QJsonValue::Undefined: return u"nothing"_s;
    }
    Q_UNREACHABLE();
}

std::unexpected<DecodingError> mismatch(const QString &wanted, const QJsonValue &found, const QString &path = {})
{
    const Kind kind = found.isNull() ? Kind::valueNotFound : Kind::typeMismatch;
    return std::unexpected(DecodingError{kind, path, u"Expected %1 but found %2."_s.arg(wanted, typeName(found))});
}

} // namespace

std::expected<QJsonObject, DecodingError> object(const QJsonValue &value)
{
    if (!value.isObject())
        return mismatch(u"an object"_s, value);
    return value.toObject();
}

std::expected<QJsonValue, DecodingError> member(const QJsonObject &object, const QString &name)
{
    const auto found = object.constFind(name);
    if (found == object.constEnd())
        return std::unexpected(DecodingError{Kind::keyNotFound, {}, u"The member “%1” is missing."_s.arg(name)});
    return *found;
}

std::expected<QString, DecodingError> string(const QJsonValue &value)
{
    if (!value.isString())
        return mismatch(u"a string"_s, value);
    return value.toString();
}

std::expected<QString, DecodingError> string(const QJsonObject &object, const QString &name)
{
    const auto value = member(object, name);
    if (!value)
        return std::unexpected(value.error());
    const auto text = string(*value);
    return text ? text : std::unexpected(text.error().below(name));
}

std::expected<QJsonArray, DecodingError> array(const QJsonObject &object, const QString &name)
{
    const auto value = member(object, name);
    if (!value)
        return std::unexpected(value.error());
    if (!value->isArray())
        return mismatch(u"an array"_s, *value, name);
    return value->toArray();
}

std::expected<qint64, DecodingError> integer(const QJsonObject &object, const QString &name)
{
    const auto value = member(object, name);
    if (!value)
        return std::unexpected(value.error());
    if (!value->isDouble())
        return mismatch(u"a whole number"_s, *value, name);
    // Two different fallbacks tell a number that doesn't fit from one that happens to be the fallback.
    const qint64 number = value->toInteger(0);
    if (number != value->toInteger(1))
        return std::unexpected(DecodingError{Kind::dataCorrupted, name, u"The number is not a whole 64-bit number."_s});
    return number;
}

std::expected<std::optional<QByteArray>, DecodingError> optionalBytes(const QJsonObject &object, const QString &name)
{
    const auto found = object.constFind(name);
    if (found == object.constEnd() || found->isNull())
        return std::optional<QByteArray>();
    if (!found->isString())
        return mismatch(u"a string"_s, *found, name);
    const QByteArray text = found->toString().toUtf8();
    auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || text.size() % 4 != 0)
        return std::unexpected(DecodingError{Kind::dataCorrupted, name, u"The text is not valid Base64."_s});
    return std::optional(*decoded);
}

} // namespace vantrel::json
