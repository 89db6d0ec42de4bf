#pragma once

#include "KeyboardShortcuts/Shortcut.h"
#include "Tests/VantrelKit/Printing.h"

/// How GoogleTest shows the values of these tests when they are not what was expected.
namespace vantrel {

inline void PrintTo(const Shortcut &shortcut, std::ostream *stream)
{
    *stream << shortcut.json().toStdString();
}

} // namespace vantrel
