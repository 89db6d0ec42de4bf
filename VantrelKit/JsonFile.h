#pragma once

#include <QByteArray>
#include <QString>

#include <simdjson.h>

#include <optional>
#include <string_view>

/// Reading of other programs' JSON, which may be large, damaged or of another shape. Included by sources only: it is
/// the only place that brings in simdjson. Any thread; what is returned is valid on the same thread until the next call
/// there, since the parser's memory is used again for the next text.
namespace vantrel::json {

/// The text's root; none when it isn't JSON from beginning to end.
[[nodiscard]] std::optional<simdjson::dom::element> parse(const QByteArray &text);

/// The object in a file; none when it isn't a plain file, can't be read, isn't JSON or holds no object.
[[nodiscard]] std::optional<simdjson::dom::object> readObject(const QString &path);

/// What one member of an object holds. Missing and null are the same to the readers of these files.
enum class Member { present, absent, mistyped };

/// Sets `value` when the member is present.
template <typename Value>
[[nodiscard]] Member member(const simdjson::dom::object &object, std::string_view name, Value &value)
{
    simdjson::dom::element element;
    if (object.at_key(name).get(element) != simdjson::SUCCESS || element.is_null())
        return Member::absent;
    return element.get(value) == simdjson::SUCCESS ? Member::present : Member::mistyped;
}

/// A string member as text. Sets `text` to none when it is absent; false when it is no string.
[[nodiscard]] bool readText(const simdjson::dom::object &object, std::string_view name, std::optional<QString> &text);

} // namespace vantrel::json
