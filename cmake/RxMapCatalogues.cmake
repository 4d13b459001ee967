# Catalogues of a target's texts. The build compiles what stands in the sources and writes nothing there; the target
# update_translations enters new texts as unfinished and drops those that are gone, and a test tells when that is due.
#   rxmap_add_catalogues(NAME FOLDER TEXTS_OF FOLDER...): translations/NAME_<language>.ts of the calling folder becomes
#   FOLDER/NAME_<language>.qm; the .qm files' paths are left in `catalogues`.
# The texts are those of all sources below the folders of TEXTS_OF.
function(rxmap_add_catalogues name folder)
    cmake_parse_arguments(arg "" "" "TEXTS_OF" ${ARGN})
    set(sources "")
    set(catalogues "")
    foreach(language IN ITEMS de fr es pt_BR)
        set(source "${CMAKE_CURRENT_SOURCE_DIR}/translations/${name}_${language}.ts")
        set(catalogue "${folder}/${name}_${language}.qm")
        add_custom_command(OUTPUT "${catalogue}"
            COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
            COMMAND Qt5::lrelease -silent "${source}" -qm "${catalogue}"
            DEPENDS "${source}" VERBATIM)
        list(APPEND sources "${source}")
        list(APPEND catalogues "${catalogue}")
    endforeach()
    set(catalogues ${catalogues} PARENT_SCOPE)

    set(update "$<TARGET_FILE:Qt5::lupdate>" -silent -locations none -no-obsolete ${arg_TEXTS_OF} -ts)
    if(NOT TARGET update_translations)
        add_custom_target(update_translations)
    endif()
    add_custom_target(update_translations_of_${name} COMMAND ${update} ${sources}
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" VERBATIM)
    add_dependencies(update_translations update_translations_of_${name})
    if(BUILD_TESTING)
        add_test(NAME the_catalogues_of_${name}_are_up_to_date
            COMMAND ${CMAKE_COMMAND} "-DCATALOGUES=${sources}" "-DUPDATE=${update}"
                "-DFOLDER=${CMAKE_CURRENT_BINARY_DIR}/updated_translations_of_${name}"
                -P "${PROJECT_SOURCE_DIR}/cmake/CheckCatalogues.cmake"
            WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    endif()
endfunction()
