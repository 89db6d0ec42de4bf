#pragma once

#include <QJsonValue>
#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <utility>

/// JSON text whose members stand in the order given, which Qt's own objects don't keep.
namespace vantrel {

using JsonMembers = QList<std::pair<QLatin1StringView, QString>>;

/// A value as compact JSON text.
[[nodiscard]] QString jsonText(const QJsonValue &value);

/// An object whose members are JSON text already.
[[nodiscard]] QString jsonObject(const JsonMembers &members);

/// An array whose elements are JSON text already, one a line.
[[nodiscard]] QString jsonArray(const QStringList &elements);

} // namespace vantrel
