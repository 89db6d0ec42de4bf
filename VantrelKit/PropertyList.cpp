#include "VantrelKit/PropertyList.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// What the "Char" production of XML 1.0 has no place for.
bool isForbidden(QChar character)
{
    const ushort code = character.unicode();
    const bool isControl = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
    return isControl || code >= 0xfffe;
}

QString escaped(const QString &text)
{
    QString result;
    // Half a surrogate pair becomes U+FFFD on the way through UTF-8.
    for (const QChar character : QString::fromUtf8(text.toUtf8())) {
        if (character == u'&')
            result += "&amp;"_L1;
        else if (character == u'<')
            result += "&lt;"_L1;
        else if (character == u'>')
            result += "&gt;"_L1;
        else if (character == u'\r')
            // A reader takes a bare one for the end of a line, which it passes on as "\n".
            result += "&#13;"_L1;
        else
            result += isForbidden(character) ? QChar(QChar::ReplacementCharacter) : character;
    }
    return result;
}

QString element(const QString &indent, const QString &name, const QString &text)
{
    return indent + u'<' + name + u'>' + escaped(text) + u"</"_s + name + u">\n"_s;
}

QString valueText(const QVariant &value, const QString &indent);

QString dictionaryText(const QVariantMap &dictionary, const QString &indent)
{
    QString text = indent + u"<dict>\n"_s;
    const QString inner = indent + u'\t';
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry)
        text += element(inner, u"key"_s, entry.key()) + valueText(entry.value(), inner);
    return text + indent + u"</dict>\n"_s;
}

QString arrayText(const QVariantList &array, const QString &indent)
{
    QString text = indent + u"<array>\n"_s;
    for (const QVariant &value : array)
        text += valueText(value, indent + u'\t');
    return text + indent + u"</array>\n"_s;
}

QString valueText(const QVariant &value, const QString &indent)
{
    switch (value.typeId()) {
    case QMetaType::Bool: return indent + (value.toBool() ? u"<true/>\n"_s : u"<false/>\n"_s);
    case QMetaType::QStringList:
    case QMetaType::QVariantList: return arrayText(value.toList(), indent);
    case QMetaType::QVariantMap: return dictionaryText(value.toMap(), indent);
    default: return element(indent, u"string"_s, value.toString());
    }
}

} // namespace

QByteArray propertyListXML(const QVariantMap &dictionary)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           dictionaryText(dictionary, {}).toUtf8() + "</plist>\n";
}

} // namespace vantrel
