#include "Tests/Vantrel/Safari/StandIn/AppleScript.h"

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

const QString listBegin = u"on listItems()\n    "_s;
const QString listEnd =
    u"\nend listItems\nset out to \"\"\nrepeat with anItem in listItems()\n    set out to out & (anItem "
    "as text) & linefeed\nend repeat\nreturn out"_s;

/// The string that begins at a quote; moves behind its end.
std::optional<QString> takeString(const QString &script, qsizetype &place)
{
    QString text;
    for (++place; place < script.size(); ++place) {
        if (script[place] == u'"') {
            ++place;
            return text;
        }
        if (script[place] == u'\\' && ++place < script.size() && script[place] != u'\\' && script[place] != u'"')
            return std::nullopt;
        if (place < script.size())
            text += script[place];
    }
    return std::nullopt;
}

QString takeWord(const QString &script, qsizetype &place)
{
    const qsizetype begin = place;
    while (place < script.size() && !u" \n\"{},"_s.contains(script[place]))
        ++place;
    // A brace or a comma is a word of its own.
    if (place == begin)
        ++place;
    return script.sliced(begin, place - begin);
}

} // namespace

std::optional<AppleScript> AppleScript::parse(const QString &script)
{
    AppleScript result;
    QString text = script;
    result.isList = text.startsWith(listBegin) && text.endsWith(listEnd);
    if (result.isList)
        text = text.sliced(listBegin.size()).chopped(listEnd.size());
    result.statements.append(Statement());
    for (qsizetype place = 0; place < text.size();) {
        if (text[place] == u'\n') {
            result.statements.append(Statement());
            ++place;
        } else if (text[place] == u' ') {
            ++place;
        } else if (text[place] == u'"') {
            auto string = takeString(text, place);
            if (!string)
                return std::nullopt;
            result.statements.last().append({*string, true});
        } else {
            result.statements.last().append({takeWord(text, place), false});
        }
    }
    return result;
}

std::optional<QStringList> AppleScript::match(const Statement &statement, const QString &pattern)
{
    const QStringList words = pattern.split(u' ');
    if (words.size() != statement.size())
        return std::nullopt;
    QStringList captured;
    for (qsizetype index = 0; index < words.size(); ++index) {
        const Token &token = statement[index];
        bool isNumber = false;
        std::ignore = token.text.toLongLong(&isNumber);
        if (words[index] == "%s"_L1   ? !token.isString
            : words[index] == "%n"_L1 ? token.isString || !isNumber
                                      : token.isString || token.text != words[index])
            return std::nullopt;
        if (words[index].startsWith(u'%'))
            captured.append(token.text);
    }
    return captured;
}

} // namespace vantrel::test
