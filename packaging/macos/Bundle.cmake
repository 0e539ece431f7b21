# Makes the executable "Corvane Quillet.app", signed so that it runs on this Mac, and a disk image of it that
# carries its libraries: cpack in the build folder.
include(${CMAKE_CURRENT_LIST_DIR}/Information.cmake)

set(QUILLET_BUNDLE_NAME "Corvane Quillet")
set(QUILLET_APPCAST_URL "" CACHE STRING "Where the updater looks for newer versions; none by default")
set(QUILLET_UPDATE_KEY "" CACHE STRING "The public key (EdDSA) that updates must be signed with")
set(QUILLET_UPDATER_FRAMEWORK "" CACHE PATH "Sparkle.framework, to be copied into the bundle; none by default")
set(QUILLET_SIGNING_IDENTITY "-" CACHE STRING "What codesign signs with; - signs for this Mac only")

function(quillet_bundle target)
    set(resources ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
    set(information ${CMAKE_CURRENT_BINARY_DIR}/Info.plist)
    quillet_information_file(${information})
    set_target_properties(${target} PROPERTIES
        MACOSX_BUNDLE TRUE
        OUTPUT_NAME "${QUILLET_BUNDLE_NAME}"
        MACOSX_BUNDLE_INFO_PLIST ${information}
        INSTALL_RPATH "@executable_path/../Frameworks")
    quillet_bundle_icon(${target})
    # The signature covers them, so whatever changes them must lead to the signing below.
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS
        ${information} ${resources}/entitlements.plist ${CMAKE_CURRENT_BINARY_DIR}/corvane-quillet.icns)

    if(QUILLET_UPDATER_FRAMEWORK)
        add_custom_command(TARGET ${target} POST_BUILD
            # With its symbolic links, which make up a framework.
            COMMAND /usr/bin/ditto ${QUILLET_UPDATER_FRAMEWORK}
                "$<TARGET_BUNDLE_CONTENT_DIR:${target}>/Frameworks/Sparkle.framework"
            COMMAND codesign --force --deep --sign "${QUILLET_SIGNING_IDENTITY}"
                "$<TARGET_BUNDLE_CONTENT_DIR:${target}>/Frameworks/Sparkle.framework"
            VERBATIM)
    endif()
    # Permissions belong to a signature. The hardened runtime is left to what is handed on: it would refuse
    # the libraries of others that a build on this Mac uses where they are.
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND codesign --force --sign "${QUILLET_SIGNING_IDENTITY}" --identifier ${QUILLET_IDENTIFIER}
            --entitlements ${resources}/entitlements.plist "$<TARGET_BUNDLE_DIR:${target}>"
        VERBATIM)

    install(TARGETS ${target} BUNDLE DESTINATION .)
    find_program(QUILLET_MACDEPLOYQT macdeployqt HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
    configure_file(${resources}/deploy.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/deploy.cmake @ONLY)
    install(SCRIPT ${CMAKE_CURRENT_BINARY_DIR}/deploy.cmake)
endfunction()

# The icon in every size that the system asks for.
function(quillet_bundle_icon target)
    find_program(RSVG_CONVERT rsvg-convert REQUIRED)
    set(icons ${CMAKE_SOURCE_DIR}/assets/icon)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/corvane-quillet.iconset)
    set(icon ${CMAKE_CURRENT_BINARY_DIR}/corvane-quillet.icns)
    file(MAKE_DIRECTORY ${folder})
    foreach(points IN ITEMS 16 32 128 256 512)
        math(EXPR double "2 * ${points}")
        foreach(pair "${points}x${points};${points}" "${points}x${points}@2x;${double}")
            list(GET pair 0 name)
            list(GET pair 1 pixels)
            set(drawing ${icons}/corvane-quillet.svg)
            if(pixels LESS_EQUAL 24)
                set(drawing ${icons}/corvane-quillet-small.svg)
            endif()
            list(APPEND draw COMMAND ${RSVG_CONVERT} --width ${pixels} --height ${pixels}
                --output ${folder}/icon_${name}.png ${drawing})
        endforeach()
    endforeach()
    add_custom_command(OUTPUT ${icon}
        ${draw}
        COMMAND iconutil --convert icns --output ${icon} ${folder}
        DEPENDS ${icons}/corvane-quillet.svg ${icons}/corvane-quillet-small.svg
        VERBATIM)
    target_sources(${target} PRIVATE ${icon})
    set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
endfunction()
