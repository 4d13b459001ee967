# Where `cmake --install` puts things: components simulator, plugin and development, which become a package each.

include(GNUInstallDirs)
# The stand-ins' libraries and the plug-ins are the program's own, not the system's.
set(RXMAP_INSTALL_PRIVATE_LIBDIR "${CMAKE_INSTALL_LIBDIR}/terminal-simulator")
set(RXMAP_INSTALL_DATADIR "${CMAKE_INSTALL_DATADIR}/terminal-simulator")
