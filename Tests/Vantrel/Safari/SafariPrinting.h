#pragma once

#include "Tests/VantrelKit/Samples.h"
#include "Vantrel/Safari/MenuReader.h"

namespace vantrel::Safari {

inline void PrintTo(const Failure &failure, std::ostream *stream)
{
    *stream << failure.message.toStdString() << (failure.isTimeout ? " (time-out)" : "");
}

inline void PrintTo(const ProfileItems &items, std::ostream *stream)
{
    *stream << (items.layout == MenuLayout::flat ? "flat: " : "submenu: ") << items.titles.join(u'|').toStdString();
}

} // namespace vantrel::Safari
