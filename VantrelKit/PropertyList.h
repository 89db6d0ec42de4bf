#pragma once

#include <QByteArray>
#include <QVariantMap>

namespace vantrel {

/// A dictionary as the file of a macOS property list, in XML. Values are `QString`, `bool`, `QStringList`,
/// `QVariantList` and `QVariantMap`; keys are written in their order. Characters that XML can't hold, such as most
/// controls, are written as U+FFFD.
[[nodiscard]] QByteArray propertyListXML(const QVariantMap &dictionary);

} // namespace vantrel
