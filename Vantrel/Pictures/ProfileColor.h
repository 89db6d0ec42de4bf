#pragma once

#include <QByteArrayView>
#include <QColor>
#include <QString>

namespace vantrel {

/// The 64-bit FNV-1a hash: unlike Qt's own hashes it is the same in every process and every version.
[[nodiscard]] quint64 fnv1a(QByteArrayView bytes);

/// The colour behind a profile's initial, one of eight. It depends on the profile's id alone, so that it stays when the
/// profile is renamed or moved.
[[nodiscard]] QColor profileColor(const QString &id);

} // namespace vantrel
