# What is written in Swift, for the AppIntents framework: an object file that the app is linked with, and the description
# of its actions and entities in the bundle, without which the system knows of none. Swift is called here and not enabled
# as a language, for CMake takes no Swift beside other languages in one target, and would link the app with its compiler.
find_program(VANTREL_XCRUN xcrun REQUIRED)

# The answer of xcrun, which knows Apple's tools: `vantrel_ask_xcrun(variable argument…)`. Empty when it has none.
function(vantrel_ask_xcrun variable)
  execute_process(COMMAND ${VANTREL_XCRUN} ${ARGN} OUTPUT_VARIABLE answer RESULT_VARIABLE status
    OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT status EQUAL 0)
    set(answer "")
  endif()
  set(${variable} "${answer}" PARENT_SCOPE)
endfunction()

# The protocols whose constants the compiler writes down for the description: `vantrel_const_protocols(file toolchain)`.
function(vantrel_const_protocols file toolchain)
  set(known ${toolchain}/usr/share/swift/SwiftConstantValues/AppIntents.json)
  if(EXISTS ${known})
    file(READ ${known} content)
    string(JSON protocols GET "${content}" constValueProtocols)
  else()
    # Of the tools that come without a list.
    set(protocols "[\"AppIntent\", \"EntityQuery\", \"AppEntity\", \"TransientEntity\", \"AppEnum\",
 \"AppShortcutProviding\", \"AppShortcutsProvider\", \"AnyResolverProviding\", \"AppIntentsPackage\",
 \"DynamicOptionsProvider\", \"_IntentValueRepresentable\", \"_AssistantIntentsProvider\",
 \"_GenerativeFunctionExtractable\", \"IntentValueQuery\", \"Resolver\"]")
  endif()
  file(CONFIGURE OUTPUT ${file} CONTENT "@protocols@\n" @ONLY)
endfunction()

set(architecture "${CMAKE_OSX_ARCHITECTURES}")
if(architecture STREQUAL "")
  set(architecture ${CMAKE_SYSTEM_PROCESSOR})
endif()
list(LENGTH architecture architectures)
if(architectures GREATER 1)
  message(FATAL_ERROR "The actions are built for one processor at a time, and CMAKE_OSX_ARCHITECTURES has "
    "${architectures}: build for each, and join the programs with lipo")
endif()
set(triple ${architecture}-apple-macos${CMAKE_OSX_DEPLOYMENT_TARGET})

vantrel_ask_xcrun(swiftc --find swiftc)
vantrel_ask_xcrun(sdk --sdk macosx --show-sdk-path)
if(swiftc STREQUAL "" OR sdk STREQUAL "")
  message(FATAL_ERROR "xcrun finds no swiftc, or no macOS SDK: install Apple's developer tools")
endif()
# …/usr/bin/swiftc
cmake_path(GET swiftc PARENT_PATH toolchain)
cmake_path(GET toolchain PARENT_PATH toolchain)
cmake_path(GET toolchain PARENT_PATH toolchain)

set(swift ${PROJECT_SOURCE_DIR}/Platform/MacOS/AppIntents)
set(swift_sources
  ${swift}/OpenLinksInProfileIntent.swift
  ${swift}/OpenProfileIntent.swift
  ${swift}/ProfileEntity.swift
  ${swift}/ProfileIndex.swift
  ${swift}/ProfileQuery.swift
  ${swift}/Program.swift
  ${swift}/VantrelShortcuts.swift)
set(bridge ${PROJECT_SOURCE_DIR}/Platform/AppIntents/ActionsBridge.h)
set(made ${CMAKE_CURRENT_BINARY_DIR}/VantrelActions)
vantrel_const_protocols(${made}.protocols.json ${toolchain})

# As one module, for otherwise no constants are written, and nothing says so.
add_custom_command(OUTPUT ${made}.o ${made}.swiftconstvalues
  COMMAND ${swiftc} -parse-as-library -wmo -module-name VantrelActions -swift-version 5
    -target ${triple} -sdk ${sdk} -import-objc-header ${bridge}
    $<IF:$<CONFIG:Debug>,-Onone,-O> -g
    -emit-const-values-path ${made}.swiftconstvalues
    -Xfrontend -const-gather-protocols-file -Xfrontend ${made}.protocols.json
    -c ${swift_sources} -o ${made}.o
  DEPENDS ${swift_sources} ${bridge} ${made}.protocols.json VERBATIM)
add_custom_target(VantrelActionsObject DEPENDS ${made}.o)
add_dependencies(vantrel-app VantrelActionsObject)
target_link_libraries(vantrel-app PRIVATE ${made}.o "-framework AppIntents" "-framework CoreSpotlight")
target_link_directories(vantrel-app PRIVATE ${sdk}/usr/lib/swift ${toolchain}/usr/lib/swift/macosx)

# Only Xcode has the program that describes them; Apple's command line tools alone have not.
vantrel_ask_xcrun(processor --find appintentsmetadataprocessor)
if(processor STREQUAL "")
  message(STATUS "appintentsmetadataprocessor, a part of Xcode, was not found: "
    "Shortcuts, Siri and Spotlight will not know of Vantrel's actions")
else()
  vantrel_ask_xcrun(xcode xcodebuild -version)
  string(REGEX REPLACE ".*Build version ([^ \n]+).*" "\\1" xcode "${xcode}")
  list(JOIN swift_sources "\n" names)
  file(CONFIGURE OUTPUT ${made}.sources CONTENT "@names@\n" @ONLY)
  file(CONFIGURE OUTPUT ${made}.constants CONTENT "@made@.swiftconstvalues\n" @ONLY)
  set(described ${contents}/Resources/Metadata.appintents)
  set(describe ${CMAKE_CURRENT_LIST_DIR}/DescribeActions.cmake)
  # The program itself isn't looked at; it is named because the option has to be there.
  add_custom_command(OUTPUT ${described}/extract.actionsdata ${described}/version.json
    COMMAND ${CMAKE_COMMAND} -D OUTPUT=${contents}/Resources -P ${describe} -- ${processor}
      --toolchain-dir ${toolchain} --module-name VantrelActions --sdk-root ${sdk} --xcode-version ${xcode}
      --platform-family macOS --deployment-target ${CMAKE_OSX_DEPLOYMENT_TARGET} --target-triple ${triple}
      --bundle-identifier app.kestrune.Vantrel --binary-file ${contents}/MacOS/vantrel-app
      --source-file-list ${made}.sources --swift-const-vals-list ${made}.constants
      --output ${contents}/Resources --compile-time-extraction --deployment-aware-processing
    DEPENDS ${made}.swiftconstvalues ${made}.sources ${made}.constants ${describe} VERBATIM)
  add_custom_target(ActionsDescription DEPENDS ${described}/extract.actionsdata VantrelActionsObject)
  add_dependencies(vantrel-app ActionsDescription)
endif()
