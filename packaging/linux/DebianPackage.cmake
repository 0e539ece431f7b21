# cpack -G DEB in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvane-quillet)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Corvane <packages@quillet.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "floating formatting bar for text editing")
set(CPACK_PACKAGE_DESCRIPTION
    "Shows a small bar of formatting buttons above the text selected in another
application. A click posts the keyboard shortcut with which that application
formats its own text.")
set(CPACK_PACKAGE_HOMEPAGE_URL ${QUILLET_HOMEPAGE})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES TRUE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${QUILLET_BUILD_NUMBER})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS TRUE)
# Without the first two there are no selections; the program says so and runs on. The third is what
# feedback and the look for updates trust a server by, the last has the words for what goes wrong there
# in the user's language.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "at-spi2-core, default-dbus-session-bus | dbus-session-bus, ca-certificates, \
qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
include(CPack)
