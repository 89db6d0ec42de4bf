#include "Vantrel/CommandLine/OrderedJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace vantrel {

QString jsonText(const QJsonValue &value)
{
    // A document holds no bare value, so it goes in as the only element of an array, whose brackets come off again.
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.sliced(1, array.size() - 2));
}

QString jsonObject(const JsonMembers &members)
{
    QStringList texts;
    for (const auto &[name, value] : members)
        texts.append(jsonText(QString(name)) + u':' + value);
    return u'{' + texts.join(u',') + u'}';
}

QString jsonArray(const QStringList &elements)
{
    return elements.isEmpty() ? u"[]"_s : u"[\n"_s + elements.join(",\n"_L1) + u"\n]"_s;
}

} // namespace vantrel
