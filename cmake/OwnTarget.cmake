# What holds for every target of our own, and for no library that we use: all warnings are errors, includes start at the
# root ("VantrelKit/Profile.h"), Qt's keywords and its implicit conversions from bytes are off.
function(vantrel_own_target target)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wimplicit-fallthrough -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    # libstdc++'s stable_sort uses what it has marked as deprecated itself, and tells only g++ that this is fine. What is
    # deprecated elsewhere, g++ finds.
    target_compile_options(${target} PRIVATE -Wno-deprecated-declarations)
  endif()
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
  target_compile_definitions(${target} PRIVATE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH QT_STRICT_ITERATORS QT_USE_QSTRINGBUILDER QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
  if(VANTREL_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=all
      -fno-omit-frame-pointer -g1)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

# A static library of a module: `vantrel_module(VantrelKit SOURCES … LINKS …)`.
function(vantrel_module target)
  cmake_parse_arguments(PARSE_ARGV 1 module "" "" "SOURCES;PUBLIC;PRIVATE")
  add_library(${target} STATIC ${module_SOURCES})
  vantrel_own_target(${target})
  target_link_libraries(${target} PUBLIC ${module_PUBLIC} PRIVATE ${module_PRIVATE})
  vantrel_precompile(${target})
endfunction()

# Reads the headers that most sources of a target include once instead of in each: a good third of the time that building
# takes. Which headers a source names is checked where this is off.
function(vantrel_precompile target)
  get_target_property(sources ${target} SOURCES)
  list(LENGTH sources count)
  # Precompiling takes as long as it saves in two or three sources.
  if(VANTREL_PRECOMPILE AND count GREATER 3)
    target_precompile_headers(${target} PRIVATE ${ARGN}
      <algorithm> <chrono> <expected> <functional> <memory> <optional> <vector>
      <QByteArray> <QCoreApplication> <QDir> <QFile> <QFileInfo> <QHash> <QJsonDocument> <QJsonObject> <QList> <QObject>
      <QString> <QStringList> <QUrl>)
  endif()
endfunction()
