#pragma once

#include <QByteArray>
#include <QString>

#include <simdjson.h>

#include <optional>
#include <string_view>

/// Reading of other programs' JSON, which may be large, damaged or of another shape. Included by sources only: it is
/// the only place that brings in simdjson.
namespace vantrel::json {

/// A file's whole content, with the room behind it that the parser needs; none when it isn't a plain file or can't be
/// read.
[[nodiscard]] std::optional<simdjson::padded_string> readFile(const QString &path);

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
