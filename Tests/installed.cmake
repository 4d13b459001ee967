# Installs what was built, moves it, queries a field point with it, and builds and uses the example of a plug-in there.
#   cmake -DBUILD=... -DFOLDER=... -P installed.cmake

file(REMOVE_RECURSE "${FOLDER}")

function(run expected)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0 OR NOT output MATCHES "${expected}")
        message(FATAL_ERROR "${ARGN}: ${result}\n${output}\nwanted: ${expected}")
    endif()
endfunction()

run("" ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${FOLDER}/installed")
file(RENAME "${FOLDER}/installed" "${FOLDER}/moved")

file(GLOB_RECURSE files "${FOLDER}/moved/*")
foreach(file IN LISTS files)
    file(STRINGS "${file}" strings REGEX "${BUILD}")
    # The demonstration names the folder that it was installed in.
    list(FILTER strings EXCLUDE REGEX "${FOLDER}/installed/")
    if(strings)
        message(FATAL_ERROR "${file} knows the build's folder: ${strings}")
    endif()
endforeach()

set(simulator "${FOLDER}/moved/bin/terminal-simulator")
set(sample "${FOLDER}/moved/share/terminal-simulator/sample/sample-field.shp")
run("/ha" "${simulator}" --language de --describe 100,100 "${sample}")

run("" ${CMAKE_COMMAND} -S "${FOLDER}/moved/share/doc/rxmaphost-dev/examples/place-plugin" -B "${FOLDER}/plugin"
    -G Ninja "-DCMAKE_PREFIX_PATH=${FOLDER}/moved")
run("" ${CMAKE_COMMAND} --build "${FOLDER}/plugin")
run("12 m east, 34 m north" "${simulator}" --plugin-dir "${FOLDER}/plugin" --describe 12,34)
