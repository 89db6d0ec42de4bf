#include "Vantrel/Safari/Automation.h"

namespace vantrel::Safari {

Automation::Automation(const Environment &environment)
    : scripting_(*environment.ports.scripts, environment.log),
      menus_({scripting_, environment.languages, environment.clock, environment.log}),
      connector_({*environment.ports.bridge, *environment.ports.automation, environment.clock, environment.log}),
      opener_({scripting_, environment.clock}),
      finder_({menus_, *environment.ports.bridge, *environment.ports.accessibility, environment.runningApplications,
               environment.clock, environment.log}),
      windows_({connector_, menus_, scripting_, opener_, *environment.ports.accessibility,
                environment.runningApplications, environment.log})
{
}

} // namespace vantrel::Safari
