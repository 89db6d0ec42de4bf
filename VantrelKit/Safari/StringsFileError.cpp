#include "VantrelKit/Safari/StringsFileError.h"

using namespace Qt::StringLiterals;

namespace vantrel {

QString StringsFileError::message() const
{
    return place ? u"line %1, column %2: %3"_s.arg(QString::number(place->line), QString::number(place->column), reason)
                 : reason;
}

} // namespace vantrel
