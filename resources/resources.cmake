# The program's resources and the files that ship next to quorin.exe (win build only).
#
#   quorin_resources           interface library: include "resource.h" and "QuorinVersion.h"
#   quorin_add_resources(t)    compiles quorin.rc (icons, splash picture, manifest, version) into t
#   quorin_copy_assets(t)      copies findfile.avi and qn.HLP into t's output folder
#
# The icons, the splash picture and the animation are drawn by tools/assetgen. This is a cross
# build, so the generator is compiled here with the build machine's own compiler and run at
# build time; the native build compiles and tests it as a normal target (tools/).
include_guard(GLOBAL)

# The functions run in their callers' folders, so these are global rather than variables.
set(QUORIN_RESOURCE_DIR ${CMAKE_CURRENT_LIST_DIR} CACHE INTERNAL "")
set(QUORIN_CONFIGURED_DIR ${CMAKE_BINARY_DIR}/resources CACHE INTERNAL "")
set(QUORIN_ASSET_DIR ${CMAKE_BINARY_DIR}/assets CACHE INTERNAL "")

configure_file(${QUORIN_RESOURCE_DIR}/QuorinVersion.h.in ${QUORIN_CONFIGURED_DIR}/QuorinVersion.h)
configure_file(${QUORIN_RESOURCE_DIR}/quorin.manifest.in ${QUORIN_CONFIGURED_DIR}/quorin.manifest)

add_library(quorin_resources INTERFACE)
target_include_directories(quorin_resources INTERFACE ${QUORIN_RESOURCE_DIR}
                                                      ${QUORIN_CONFIGURED_DIR})

include(${PROJECT_SOURCE_DIR}/tools/assetgen/Sources.cmake)
find_program(QUORIN_HOST_CXX NAMES c++ g++ clang++ REQUIRED)
set(QUORIN_ASSETGEN ${CMAKE_BINARY_DIR}/host/quorin-assetgen)
add_custom_command(
    OUTPUT ${QUORIN_ASSETGEN}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/host
    COMMAND ${QUORIN_HOST_CXX} -std=c++20 -O2 -ffp-contract=off -o ${QUORIN_ASSETGEN}
            ${QUORIN_ASSETGEN_LIB_SOURCES} ${QUORIN_ASSETGEN_MAIN}
    DEPENDS ${QUORIN_ASSETGEN_LIB_SOURCES} ${QUORIN_ASSETGEN_MAIN} ${QUORIN_ASSETGEN_HEADERS}
    COMMENT "Building the asset generator for the build machine"
    VERBATIM)

# What quorin.rc includes besides the drawn assets.
file(GLOB dialogResources CONFIGURE_DEPENDS ${QUORIN_RESOURCE_DIR}/*.h ${QUORIN_RESOURCE_DIR}/*.rc)
set(QUORIN_DIALOG_RESOURCES ${dialogResources} CACHE INTERNAL "")

set(QUORIN_DRAWN_ASSETS
    ${QUORIN_ASSET_DIR}/quorin.ico
    ${QUORIN_ASSET_DIR}/indexing.ico
    ${QUORIN_ASSET_DIR}/splash.bmp
    ${QUORIN_ASSET_DIR}/findfile.avi
    CACHE INTERNAL "")
add_custom_command(
    OUTPUT ${QUORIN_DRAWN_ASSETS}
    COMMAND ${QUORIN_ASSETGEN} ${QUORIN_ASSET_DIR}
    DEPENDS ${QUORIN_ASSETGEN}
    COMMENT "Drawing the icons, the splash picture and the animation"
    VERBATIM)
add_custom_target(quorin_drawn_assets DEPENDS ${QUORIN_DRAWN_ASSETS})

function(quorin_add_resources target)
    set(rc ${QUORIN_RESOURCE_DIR}/quorin.rc)
    target_sources(${target} PRIVATE ${rc})
    target_link_libraries(${target} PRIVATE quorin_resources)
    # windres looks for the files that the script names in its include folders.
    set_source_files_properties(${rc} PROPERTIES
        INCLUDE_DIRECTORIES ${QUORIN_ASSET_DIR}
        OBJECT_DEPENDS "${QUORIN_DRAWN_ASSETS};${QUORIN_CONFIGURED_DIR}/quorin.manifest;${QUORIN_DIALOG_RESOURCES}")
    add_dependencies(${target} quorin_drawn_assets)
endfunction()

# Programs that share an output folder share one copy of the files.
function(quorin_copy_assets target)
    get_target_property(folder ${target} RUNTIME_OUTPUT_DIRECTORY)
    if(NOT folder)
        get_target_property(folder ${target} BINARY_DIR)
    endif()
    string(MAKE_C_IDENTIFIER "${folder}" key)
    get_property(copier GLOBAL PROPERTY QUORIN_ASSET_COPIER_${key})
    if(NOT copier)
        set(copier ${target}_copy_assets)
        set(copies)
        foreach(source ${QUORIN_ASSET_DIR}/findfile.avi ${QUORIN_RESOURCE_DIR}/qn.HLP)
            get_filename_component(name ${source} NAME)
            add_custom_command(
                OUTPUT ${folder}/${name}
                COMMAND ${CMAKE_COMMAND} -E copy_if_different ${source} ${folder}/${name}
                DEPENDS ${source}
                VERBATIM)
            list(APPEND copies ${folder}/${name})
        endforeach()
        add_custom_target(${copier} ALL DEPENDS ${copies})
        add_dependencies(${copier} quorin_drawn_assets)
        set_property(GLOBAL PROPERTY QUORIN_ASSET_COPIER_${key} ${copier})
    endif()
    add_dependencies(${target} ${copier})
endfunction()
