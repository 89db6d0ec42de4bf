#include "VantrelKit/DecimalInteger.h"

#include <QByteArray>

#include <charconv>

namespace vantrel {

std::optional<qint64> decimalInteger(QStringView text)
{
    if (text.startsWith(u'+')) {
        text = text.sliced(1);
        if (text.startsWith(u'-'))
            return std::nullopt;
    }
    const QByteArray digits = text.toUtf8();
    qint64 number = 0;
    const auto [end, error] = std::from_chars(digits.cbegin(), digits.cend(), number);
    if (error != std::errc() || end != digits.cend())
        return std::nullopt;
    return number;
}

} // namespace vantrel
