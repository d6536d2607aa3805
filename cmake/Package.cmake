# The Debian package: `cpack --config build/release/CPackConfig.cmake` after a build leaves it in
# build/release/package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrune)
set(CPACK_PACKAGE_VENDOR "The Kestrune authors")
set(CPACK_PACKAGE_CONTACT "The Kestrune authors <hello@kestrune.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "small tools at the top centre of each display")
set(CPACK_PACKAGE_DESCRIPTION
"Kestrune lives at the top centre of each display, around the camera housing.
Closed, it is a black shape that shows the song that plays, a running timer or
a new screenshot; it springs open into a panel of fourteen small tools.")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded while it runs, so that no library names them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-templates, \
qml6-module-qtquick-window, gstreamer1.0-plugins-base, gstreamer1.0-plugins-good, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "fonts-inter, geoclue-2.0, gstreamer1.0-pipewire, libcanberra-pulse, libqt6positioning6-plugins, \
qt6-image-formats-plugins")
# The interface font has Latin letters only; a desktop in another script brings a font for it.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "evolution-data-server, fonts-noto-cjk, fonts-noto-ui-core, kdeconnect")
include(CPack)
