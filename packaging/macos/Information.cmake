# What the bundle says of itself. quillet_information_file(<file>) writes it, out of PROJECT_VERSION,
# QUILLET_BUILD_NUMBER, QUILLET_IDENTIFIER, QUILLET_BUNDLE_NAME and CMAKE_OSX_DEPLOYMENT_TARGET, and where they are
# set QUILLET_APPCAST_URL and QUILLET_UPDATE_KEY.
function(quillet_information_file file)
    set(QUILLET_UPDATER_KEYS "")
    # Without a feed the updater has nothing to look at, and without a key it trusts nothing that it finds.
    foreach(pair "SUFeedURL;QUILLET_APPCAST_URL" "SUPublicEDKey;QUILLET_UPDATE_KEY")
        list(GET pair 0 key)
        list(GET pair 1 variable)
        if(NOT "${${variable}}" STREQUAL "")
            string(REPLACE "&" "&amp;" value "${${variable}}")
            string(REPLACE "<" "&lt;" value "${value}")
            string(APPEND QUILLET_UPDATER_KEYS "    <key>${key}</key>\n    <string>${value}</string>\n")
        endif()
    endforeach()
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/Info.plist.in ${file} @ONLY)
endfunction()
