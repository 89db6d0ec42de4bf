#include "Platform/LogChannel.h"

#include "VantrelKit/Overloaded.h"
#include "VantrelKit/PrintableText.h"

#include <array>

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

} // namespace

QString logMessage(QLatin1StringView format, const QList<LogValue> &values, bool showsPrivateValues)
{
    QString message;
    qsizetype next = 0;
    for (qsizetype place = 0; place < format.size();) {
        const Placeholder *placeholder = placeholderAt(format.sliced(place));
        if (!placeholder) {
            message.append(format.at(place++));
            continue;
        }
        Q_ASSERT(next < values.size());
        message.append(placeholder->isPrivate && !showsPrivateValues ? u"<private>"_s : text(values.value(next)));
        ++next;
        place += placeholder->text.size();
    }
    Q_ASSERT(next == values.size());
    return message;
}

void LogChannel::information(QLatin1StringView format, const QList<LogValue> &values) const
{
    sink_.write(LogLevel::information, category_, logMessage(format, values, sink_.showsPrivateValues()));
}

void LogChannel::notice(QLatin1StringView format, const QList<LogValue> &values) const
{
    sink_.write(LogLevel::notice, category_, logMessage(format, values, sink_.showsPrivateValues()));
}

void LogChannel::error(QLatin1StringView format, const QList<LogValue> &values) const
{
    sink_.write(LogLevel::error, category_, logMessage(format, values, sink_.showsPrivateValues()));
}

} // namespace vantrel
