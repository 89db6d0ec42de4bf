#include "Platform/Linux/EntryText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool isPlain(QChar character)
{
    const bool isLetterOrDigit = character.unicode() < 0x80 && character.isLetterOrNumber();
    return isLetterOrDigit || u"-._/:@+,%"_s.contains(character);
}

/// GLib looks for the program before it makes one percent sign of two, and the format of entries allows no equals sign
/// in the program's path. As an argument it may hold either.
bool needsShell(const QString &program)
{
    return program.contains(u'%') || program.contains(u'=');
}

} // namespace

QString execLine(const QStringList &command)
{
    QStringList words;
    if (needsShell(command.value(0)))
        words = {u"sh"_s, u"-c"_s, execWord(u"exec \"$0\" \"$@\""_s)};
    for (const QString &argument : command)
        words.append(execWord(argument));
    return words.join(u' ');
}

QString execWord(const QString &argument)
{
    QString word = argument;
    // A program's argument can't hold it.
    word.remove(u'\0').replace(u'%', u"%%"_s);
    if (!word.isEmpty() && std::ranges::all_of(word, isPlain))
        return word;
    word.replace(u'\\', u"\\\\"_s);
    for (const QChar escaped : {u'"', u'`', u'$'})
        word.replace(escaped, u'\\' + QString(escaped));
    return u'"' + word + u'"';
}

QString keyFileValue(const QString &value)
{
    QString text = value;
    text.remove(u'\0').replace(u'\\', u"\\\\"_s);
    text.replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s).replace(u'\t', u"\\t"_s);
    // Readers skip blanks before a value.
    if (text.startsWith(u' '))
        text.replace(0, 1, u"\\s"_s);
    return text;
}

QString keyFileLine(QLatin1StringView key, const QString &value)
{
    return key + u'=' + keyFileValue(value) + u'\n';
}

} // namespace vantrel
