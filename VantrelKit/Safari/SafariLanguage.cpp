#include "VantrelKit/Safari/SafariLanguage.h"

#include "VantrelKit/Safari/CanonicalText.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Matches what is on one line. The last resort as well: with it, every item is taken for a profile's.
constexpr QLatin1StringView anyName("(.+)");

/// Formats beyond this are no menu items. To split and compile them would take far longer than their length.
constexpr qsizetype longestFormat = 4096;

/// Where an ordinary item takes as many steps as it has characters, a format of many placeholders takes countless ones.
constexpr QLatin1StringView stepLimit("(*LIMIT_MATCH=1000000)");

/// The dot matches none of Unicode's line ends.
constexpr QLatin1StringView anyLineEnd("(*ANY)");

/// The text with a backslash before each character that means something in a regular expression. Others stay as they
/// are, so that patterns can be read and compared.
QString escaped(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (u"\\^$.|?*+()[]{}"_s.contains(character))
            result += u'\\';
        result += character;
    }
    return result;
}

/// A regular expression for the whole of a text.
QRegularExpression wholeText(const QString &pattern)
{
    return QRegularExpression(stepLimit + anyLineEnd + QRegularExpression::anchoredPattern(pattern));
}

QRegularExpression itemExpression(const SafariLanguage &language)
{
    if (language.newProfileWindowFormat.size() <= longestFormat) {
        QRegularExpression expression = wholeText(language.itemPattern());
        if (expression.isValid())
            return expression;
    }
    return wholeText(anyName);
}

} // namespace

const SafariLanguage &SafariLanguage::english()
{
    static const SafariLanguage language{
        .code = u"en"_s,
        .file = u"File"_s,
        .edit = u"Edit"_s,
        .newWindow = u"New Window"_s,
        .newPrivateWindow = u"New Private Window"_s,
        .newProfileWindowFormat = u"New %@ Window"_s,
    };
    return language;
}

bool SafariLanguage::matches(const QStringList &menuBar) const
{
    return menuBar.size() >= 4 && isSameText(menuBar[2], file) && isSameText(menuBar[3], edit);
}

std::optional<QString> SafariLanguage::profileName(const QString &menuItem) const
{
    if (isSameText(menuItem, newPrivateWindow) || isSameText(menuItem, newWindow))
        return std::nullopt;
    const QRegularExpressionMatch match = itemExpression(*this).match(menuItem);
    QString name = match.captured(1);
    return name.isEmpty() ? std::nullopt : std::optional(std::move(name));
}

QString SafariLanguage::itemPattern() const
{
    static const QRegularExpression placeholder(uR"(%(?:\d+\$)?(?:\[[^\]]*\])?@)"_s,
                                                QRegularExpression::UseUnicodePropertiesOption);
    QStringList pieces = newProfileWindowFormat.split(placeholder, Qt::KeepEmptyParts);
    for (QString &piece : pieces)
        piece = escaped(piece);
    return pieces.join(anyName);
}

} // namespace vantrel
