# A Debian package for each component.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "")
set(CPACK_PACKAGE_CONTACT "uiPluginRxMap developers <developers@rxmap.example>")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL simulator plugin development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The stand-ins are not libraries of the system: they come with the simulator, and its package stands for them.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    "${CMAKE_BINARY_DIR}/Simulator/Framework" "${CMAKE_BINARY_DIR}/Simulator/bePluginRxMap")

set(CPACK_DEBIAN_SIMULATOR_PACKAGE_NAME terminal-simulator)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_SECTION science)
set(CPACK_COMPONENT_SIMULATOR_DESCRIPTION "simulator of a field computer's display terminal
Shows prescription maps as the terminal of an agricultural field computer
does, with the user-interface plug-ins of such a terminal loaded: opens a
prescription, tells the rate at a point, drives the field.")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_RECOMMENDS "uipluginrxmap, libgl1-mesa-dri")

set(CPACK_DEBIAN_PLUGIN_PACKAGE_NAME uipluginrxmap)
set(CPACK_DEBIAN_PLUGIN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PLUGIN_PACKAGE_DEPENDS "terminal-simulator (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_PLUGIN_DESCRIPTION "prescription maps for a field computer's display terminal
The user-interface plug-in that draws a prescription map into the field view,
tells the prescribed rate at a point and sets how the prescription drives the
rate controller.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME rxmaphost-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "terminal-simulator (= ${PROJECT_VERSION}), qtbase5-dev, libgl-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "plug-ins for a field computer's display terminal, development files
The interfaces that a user-interface plug-in of the terminal compiles against,
with a CMake package (RxMapHost) and an example.")

# What each Debian package says about its origin and its changes.
string(TIMESTAMP packagedOn "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(pair simulator:terminal-simulator plugin:uipluginrxmap development:rxmaphost-dev)
    string(REPLACE ":" ";" pair "${pair}")
    list(GET pair 0 component)
    list(GET pair 1 RXMAP_PACKAGE)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${RXMAP_PACKAGE}")
    configure_file(debian-changelog.in "${folder}/changelog" @ONLY)
    execute_process(COMMAND gzip --best --no-name --force --keep "${folder}/changelog")
    set(documents "${CMAKE_INSTALL_DATADIR}/doc/${RXMAP_PACKAGE}")
    install(FILES "${folder}/changelog.gz" DESTINATION "${documents}" COMPONENT ${component})
    install(FILES debian-copyright DESTINATION "${documents}" RENAME copyright COMPONENT ${component})
endforeach()

include(CPack)
