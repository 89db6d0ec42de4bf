#include "VantrelKit/DecodingError.h"

using namespace Qt::StringLiterals;

namespace vantrel {

QString DecodingError::message() const
{
    return path.isEmpty() ? debugDescription : QString(path + ": "_L1 + debugDescription);
}

DecodingError DecodingError::below(const QString &parent) const
{
    const bool needsDot = !path.isEmpty() && !path.startsWith(u'[');
    return {kind, parent + (needsDot ? "."_L1 : ""_L1) + path, debugDescription};
}

} // namespace vantrel
