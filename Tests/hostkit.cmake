# Builds the plug-in alone against a host kit that is put together here from the interfaces and the built host
# libraries.
#   cmake -DSOURCE=... -DFRAMEWORK=... -DBACKEND=... -DFOLDER=... -P hostkit.cmake

file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}/kit/lib")
file(CREATE_LINK "${SOURCE}/HostInterfaces" "${FOLDER}/kit/include" SYMBOLIC)
file(CREATE_LINK "${FRAMEWORK}" "${FOLDER}/kit/lib/libFramework.so.1" SYMBOLIC)
file(CREATE_LINK "${BACKEND}" "${FOLDER}/kit/lib/libbePluginRxMap.so" SYMBOLIC)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}: ${result}\n${output}")
    endif()
endfunction()

function(configure kit)
    run(${CMAKE_COMMAND} -S "${SOURCE}" -B "${FOLDER}/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "-DRXMAP_HOST_SDK=${FOLDER}/${kit}")
endfunction()

configure(kit)
run(${CMAKE_COMMAND} --build "${FOLDER}/build")
foreach(made libuiPluginRxMap.so translations/uiPluginRxMap_de.qm)
    if(NOT EXISTS "${FOLDER}/build/Plugins/uiPluginRxMap/${made}")
        message(FATAL_ERROR "${made} was not built")
    endif()
endforeach()
foreach(foreign Simulator Tests Benchmarks)
    if(EXISTS "${FOLDER}/build/${foreign}")
        message(FATAL_ERROR "${foreign} was built too")
    endif()
endforeach()

# The folder is moved to another kit as a whole.
file(RENAME "${FOLDER}/kit" "${FOLDER}/other")
configure(other)
file(STRINGS "${FOLDER}/build/build.ninja" former REGEX "${FOLDER}/kit/")
if(former)
    message(FATAL_ERROR "still built against the former kit: ${former}")
endif()
