#pragma once

#include "Tests/VantrelKit/Printing.h"
#include "VantrelKit/Safari/BinaryPropertyListSize.h"
#include "VantrelKit/Safari/SafariLanguage.h"

/// How GoogleTest shows the values of these tests when they are not what was expected.
namespace vantrel {

inline void PrintTo(const SafariLanguage &language, std::ostream *stream)
{
    printDebugForm(QStringList{language.code, language.file, language.edit, language.newWindow,
                               language.newPrivateWindow, language.newProfileWindowFormat},
                   stream);
}

inline void PrintTo(const BinaryPropertyListSize &size, std::ostream *stream)
{
    *stream << size.objects << " objects, " << size.bytes << " bytes";
}

} // namespace vantrel
