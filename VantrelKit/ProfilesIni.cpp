#include "VantrelKit/ProfilesIni.h"

#include "VantrelKit/Paths.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Section {
    std::optional<QString> sectionName;
    std::optional<QString> name;
    std::optional<QString> path;
    bool isRelative = true;
};

bool isNewline(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x0A && code <= 0x0D) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

/// Without the blanks and tabs at both ends; other white space belongs to the text.
QStringView trimmed(QStringView text)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

class Parser {
public:
    explicit Parser(const QString &dataFolder) : dataFolder_(dataFolder) {}

    void readLine(QStringView rawLine)
    {
        const QStringView line = trimmed(rawLine);
        if (line.isEmpty() || line.startsWith(u';') || line.startsWith(u'#'))
            return;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            finishSection();
            section_.sectionName = line.sliced(1, std::max(line.size() - 2, qsizetype{0})).toString();
            return;
        }
        if (const qsizetype equals = line.indexOf(u'='); equals >= 0)
            setValue(trimmed(line.first(equals)), trimmed(line.sliced(equals + 1)));
    }

    void finishSection()
    {
        const Section section = std::exchange(section_, {});
        if (!section.sectionName || !section.sectionName->startsWith("Profile"_L1) || !section.path)
            return;
        const QString &path = *section.path;
        const bool hasName = section.name && !section.name->isEmpty();
        profiles_.append({hasName ? *section.name : lastPathComponent(path),
                          section.isRelative ? joinedPath(dataFolder_, path) : path});
    }

    [[nodiscard]] const QList<DiscoveredProfile> &profiles() const { return profiles_; }

private:
    void setValue(QStringView key, QStringView value)
    {
        if (key == "Name"_L1)
            section_.name = value.toString();
        else if (key == "Path"_L1)
            section_.path = value.toString();
        else if (key == "IsRelative"_L1)
            section_.isRelative = value == "1"_L1;
    }

    const QString &dataFolder_;
    Section section_;
    QList<DiscoveredProfile> profiles_;
};

} // namespace

QList<DiscoveredProfile> parseProfilesINI(const QString &text, const QString &dataFolder)
{
    Parser parser(dataFolder);
    auto lineStart = text.cbegin();
    while (lineStart != text.cend()) {
        const auto lineEnd = std::find_if(lineStart, text.cend(), isNewline);
        parser.readLine(QStringView(lineStart, lineEnd));
        lineStart = lineEnd == text.cend() ? lineEnd : lineEnd + 1;
    }
    parser.finishSection();
    return parser.profiles();
}

} // namespace vantrel
