# Where `cmake --install` puts things: the components simulator, plugin and development, each of which becomes a
# package.

include(GNUInstallDirs)
# The libraries of the stand-ins, and the plug-ins, are the program's own, not the system's.
set(RXMAP_INSTALL_PRIVATE_LIBDIR "${CMAKE_INSTALL_LIBDIR}/terminal-simulator")
set(RXMAP_INSTALL_DATADIR "${CMAKE_INSTALL_DATADIR}/terminal-simulator")
