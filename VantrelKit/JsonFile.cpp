#include "VantrelKit/JsonFile.h"

#include <QFile>
#include <QFileInfo>

namespace vantrel::json {

std::optional<simdjson::padded_string> readFile(const QString &path)
{
    // Opening anything but a plain file could block, as a pipe does.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    const auto size = static_cast<size_t>(file.size());
    simdjson::padded_string content(size);
    if (size > 0 && file.read(content.data(), file.size()) != file.size())
        return std::nullopt;
    return content;
}

bool readText(const simdjson::dom::object &object, std::string_view name, std::optional<QString> &text)
{
    std::string_view view;
    const Member found = member(object, name, view);
    text = found == Member::present ? std::optional(QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size())))
                                    : std::nullopt;
    return found != Member::mistyped;
}

} // namespace vantrel::json
