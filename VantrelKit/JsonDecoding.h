#pragma once

#include "VantrelKit/DecodingError.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <expected>
#include <optional>

/// Strict reading of single JSON values: a value of another type is an error, never a default.
namespace vantrel::json {

[[nodiscard]] std::expected<QJsonObject, DecodingError> object(const QJsonValue &value);

/// The member of that name, whatever it holds; fails when it is missing.
[[nodiscard]] std::expected<QJsonValue, DecodingError> member(const QJsonObject &object, const QString &name);

[[nodiscard]] std::expected<QString, DecodingError> string(const QJsonValue &value);
[[nodiscard]] std::expected<QString, DecodingError> string(const QJsonObject &object, const QString &name);

[[nodiscard]] std::expected<QJsonArray, DecodingError> array(const QJsonObject &object, const QString &name);

/// A whole number; one with a fraction or beyond 64 bits fails.
[[nodiscard]] std::expected<qint64, DecodingError> integer(const QJsonObject &object, const QString &name);

/// Bytes in standard Base64; none when the member is missing or null.
[[nodiscard]] std::expected<std::optional<QByteArray>, DecodingError> optionalBytes(const QJsonObject &object,
                                                                                    const QString &name);

} // namespace vantrel::json
