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

    /// The text of this size in the buffer.
    simdjson::simdjson_result<simdjson::dom::element> parse(qsizetype size)
    {
        return parser.parse(buffer.constData(), static_cast<size_t>(size), false);
    }
};

Parser &threadParser()
{
    thread_local Parser parser;
    return parser;
}

constexpr auto padding = static_cast<qsizetype>(simdjson::SIMDJSON_PADDING);

/// Puts a text into the buffer.
void fill(Parser &parser, const QByteArray &text)
{
    parser.buffer.resize(text.size() + padding);
    std::ranges::copy(text, parser.buffer.begin());
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The place behind a string that begins at `quote`.
char *endOfString(char *quote, char *end)
{
    char *place = quote + 1;
    while (place < end && *place != '"')
        place += *place == '\\' ? 2 : 1;
    return std::min(place + 1, end);
}

/// Puts blanks in the place of digits that make whole numbers longer than 64 bits. What is no JSON stays none.
void shortenIntegers(char *text, char *end)
{
    constexpr qsizetype longest = 18;
    for (char *place = text; place < end;) {
        if (*place == '"') {
            place = endOfString(place, end);
            continue;
        }
        char *const digitsEnd = std::find_if_not(place, end, isDigit);
        const bool isInteger = digitsEnd == end || (*digitsEnd != '.' && *digitsEnd != 'e' && *digitsEnd != 'E');
        if (digitsEnd - place > longest && isInteger)
            std::fill(place + longest, digitsEnd, ' ');
        place = std::max(digitsEnd, place + 1);
    }
}

/// simdjson refuses whole numbers beyond 64 bits, which are good JSON all the same. Nobody here reads numbers.
std::optional<simdjson::dom::element> parseWithLargeNumbers(Parser &parser, qsizetype size)
{
    shortenIntegers(parser.buffer.data(), parser.buffer.data() + size);
    simdjson::dom::element root;
    return parser.parse(size).get(root) == simdjson::SUCCESS ? std::optional(root) : std::nullopt;
}

std::optional<simdjson::dom::element> parsed(Parser &parser, qsizetype size)
{
    simdjson::dom::element root;
    switch (parser.parse(size).get(root)) {
    case simdjson::SUCCESS: return root;
    case simdjson::NUMBER_ERROR: return parseWithLargeNumbers(parser, size);
    default: return std::nullopt;
    }
}

} // namespace

std::optional<simdjson::dom::element> parse(const QByteArray &text)
{
    Parser &parser = threadParser();
    fill(parser, text);
    return parsed(parser, text.size());
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
    const auto root = parsed(parser, size);
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
