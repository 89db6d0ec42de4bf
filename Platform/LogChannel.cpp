#include "Platform/LogChannel.h"

#include "VantrelKit/Overloaded.h"
#include "VantrelKit/PrintableText.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Placeholder {
    QLatin1StringView text;
    bool isPrivate = false;
};

constexpr std::array placeholders{Placeholder{"%{public}s"_L1}, Placeholder{"%{private}s"_L1, true},
                                  Placeholder{"%ld"_L1}, Placeholder{"%d"_L1}, Placeholder{"%{bool}d"_L1}};

/// The placeholder with which the text begins; null for none.
const Placeholder *placeholderAt(QLatin1StringView text)
{
    for (const Placeholder &placeholder : placeholders) {
        if (text.startsWith(placeholder.text))
            return &placeholder;
    }
    return nullptr;
}

QString text(const LogValue &value)
{
    return std::visit(Overloaded{
                          [](const QString &string) { return printable(string); },
                          [](qint64 number) { return QString::number(number); },
                          [](bool isTrue) { return isTrue ? u"true"_s : u"false"_s; },
                      },
                      value);
}

void append(LogMessage &message, const QString &text, bool isPrivate)
{
    if (!message.isEmpty() && !message.constLast().isPrivate && !isPrivate)
        message.last().text += text;
    else
        message.append({text, isPrivate});
}

} // namespace

LogMessage logMessage(QLatin1StringView format, const QList<LogValue> &values)
{
    LogMessage message;
    qsizetype next = 0;
    for (qsizetype place = 0; place < format.size();) {
        const Placeholder *placeholder = placeholderAt(format.sliced(place));
        if (!placeholder) {
            append(message, QString(format.sliced(place++, 1)), false);
            continue;
        }
        Q_ASSERT(next < values.size());
        append(message, text(values.value(next)), placeholder->isPrivate);
        ++next;
        place += placeholder->text.size();
    }
    Q_ASSERT(next == values.size());
    return message;
}

QString logText(const LogMessage &message, bool showsPrivateParts)
{
    QString text;
    for (const LogPart &part : message)
        text += part.isPrivate && !showsPrivateParts ? u"<private>"_s : part.text;
    return text;
}

LogSections logSections(const LogMessage &message)
{
    LogSections sections;
    // What is public waits until it is known whether something private follows.
    for (const LogPart &part : message) {
        if (part.isPrivate)
            sections.privateText =
                sections.privateText.value_or(QString()) + std::exchange(sections.after, {}) + part.text;
        else if (!sections.privateText)
            sections.before += part.text;
        else
            sections.after += part.text;
    }
    return sections;
}

void LogChannel::information(QLatin1StringView format, const QList<LogValue> &values) const
{
    sink_.write(LogLevel::information, category_, logMessage(format, values));
}

void LogChannel::notice(QLatin1StringView format, const QList<LogValue> &values) const
{
    sink_.write(LogLevel::notice, category_, logMessage(format, values));
}

void LogChannel::error(QLatin1StringView format, const QList<LogValue> &values) const
{
    sink_.write(LogLevel::error, category_, logMessage(format, values));
}

} // namespace vantrel
