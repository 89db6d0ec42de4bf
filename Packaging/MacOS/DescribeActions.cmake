# Has the actions described in the bundle, and sees to it that they are: the program that does it can leave them out and
# still report success.
#
# cmake -D OUTPUT=…/Contents/Resources -P DescribeActions.cmake -- PROGRAM ARGUMENT…
set(command "")
set(is_command OFF)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
  if(is_command)
    list(APPEND command "${CMAKE_ARGV${index}}")
  elseif(CMAKE_ARGV${index} STREQUAL "--")
    set(is_command ON)
  endif()
endforeach()

set(described ${OUTPUT}/Metadata.appintents)
# Else it could be the one of an earlier build.
file(REMOVE_RECURSE ${described})
file(MAKE_DIRECTORY ${OUTPUT})
execute_process(COMMAND ${command} COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS ${described}/extract.actionsdata OR NOT EXISTS ${described}/version.json)
  message(FATAL_ERROR "No description of the actions was written to ${described}")
endif()
file(READ ${described}/extract.actionsdata content)
foreach(name IN ITEMS OpenProfileIntent OpenLinksInProfileIntent ProfileEntity ProfileQuery)
  string(FIND "${content}" ${name} found)
  if(found EQUAL -1)
    message(FATAL_ERROR "The description of the actions in ${described} says nothing of ${name}")
  endif()
endforeach()
