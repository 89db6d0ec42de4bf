#include "VantrelKit/JsonFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace vantrel::json {
namespace {

/// One for each thread: fresh memory for every file would cost more time than the parsing.
struct Parser {
    simdjson::dom::parser parser;
    /// The text, with the room behind it that the parser may read.
    QByteArray buffer;

    std::optional<simdjson::dom::element> parse(qsizetype size)
    {
        simdjson::dom::element root;
        const auto result = parser.parse(buffer.constData(), static_cast<size_t>(size), false);
        return result.get(root) == simdjson::SUCCESS ? std::optional(root) : std::nullopt;
    }
};

Parser &threadParser()
{
    thread_local Parser parser;
    return parser;
}

constexpr auto padding = static_cast<qsizetype>(simdjson::SIMDJSON_PADDING);

} // namespace

std::optional<simdjson::dom::element> parse(const QByteArray &text)
{
    Parser &parser = threadParser();
    parser.buffer.resize(text.size() + padding);
    std::ranges::copy(text, parser.buffer.begin());
    return parser.parse(text.size());
}

std::optional<simdjson::dom::object> readObject(const QString &path)
{
    // Opening anything but a plain file could block, as a pipe does.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    Parser &parser = threadParser();
    const qint64 size = file.size();
    parser.buffer.resize(size + padding);
    if (file.read(parser.buffer.data(), size) != size)
        return std::nullopt;
    const auto root = parser.parse(size);
    simdjson::dom::object object;
    if (!root || root->get(object) != simdjson::SUCCESS)
        return std::nullopt;
    return object;
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
