#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace vantrel {

/// Makes a small PNG of the picture file at a path; none when there is no file or it is no picture. An empty function
/// stands for "no pictures wanted". Any thread.
using PictureReader = std::function<std::optional<QByteArray>(const QString &path)>;

} // namespace vantrel
