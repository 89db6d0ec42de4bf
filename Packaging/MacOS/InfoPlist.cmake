# Writes the app's property list: `vantrel_info_plist(FILE VERSION FEED KEY)`. Feed and key are those of the updater (where
# it looks for updates, and the public half of the key that they are signed with); both empty where none is built in.
#
# Also a script: cmake -D FILE=… -D VERSION=… [-D FEED=… -D KEY=…] -P InfoPlist.cmake
function(vantrel_info_plist file VANTREL_VERSION feed key)
  set(updater_keys "")
  if(feed OR key)
    if(NOT feed MATCHES "^https://" OR NOT key MATCHES "^[A-Za-z0-9+/]+=*$")
      message(FATAL_ERROR "An updater needs an https address to look at and a public key in base64, "
        "and got “${feed}” and “${key}”.")
    endif()
    string(REPLACE "&" "&amp;" feed "${feed}")
    string(REPLACE "<" "&lt;" feed "${feed}")
    string(CONCAT updater_keys
      "\t<key>SUFeedURL</key>\n\t<string>${feed}</string>\n"
      "\t<key>SUPublicEDKey</key>\n\t<string>${key}</string>\n")
  endif()
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/Info.plist.in ${file} @ONLY)
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
  vantrel_info_plist("${FILE}" "${VERSION}" "${FEED}" "${KEY}")
endif()
