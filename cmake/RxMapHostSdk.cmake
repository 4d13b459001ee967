# The host's libraries, as found in a host kit: RXMAP_HOST_SDK/include and RXMAP_HOST_SDK/lib.

add_library(HostInterfaces INTERFACE)
target_include_directories(HostInterfaces SYSTEM INTERFACE "${RXMAP_HOST_SDK}/include")

function(rxmap_import_host_library name)
    find_library(RXMAP_${name}_LIBRARY NAMES ${name} "lib${name}.so.1" PATHS "${RXMAP_HOST_SDK}/lib"
        NO_DEFAULT_PATH NO_CACHE REQUIRED)
    add_library(${name} SHARED IMPORTED)
    set_target_properties(${name} PROPERTIES IMPORTED_LOCATION "${RXMAP_${name}_LIBRARY}")
    target_link_libraries(${name} INTERFACE HostInterfaces Qt5::Widgets)
endfunction()

rxmap_import_host_library(Framework)
rxmap_import_host_library(bePluginRxMap)
