# ExifTool and Leaflet come from the npm registry at the versions pinned in package-lock.json.
# They are installed into the build tree, never into the sources, and only when the lock file
# changes. ExifTool then sits at <directory of an executable>/Contents/Resources/exiftool,
# the path the application looks in first.
find_program(NPM_EXECUTABLE npm REQUIRED)
find_program(PERL_EXECUTABLE perl REQUIRED)

set(TAGSMITH_NPM_DIR ${CMAKE_BINARY_DIR}/npm)
set(TAGSMITH_NPM_STAMP ${TAGSMITH_NPM_DIR}/node_modules/.package-lock.json)
set(TAGSMITH_EXIFTOOL_DIR ${TAGSMITH_NPM_DIR}/node_modules/exiftool-vendored.pl/bin)
set(TAGSMITH_LEAFLET_DIR ${TAGSMITH_NPM_DIR}/node_modules/leaflet/dist)

add_custom_command(
    OUTPUT ${TAGSMITH_NPM_STAMP}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${TAGSMITH_NPM_DIR}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different
            ${PROJECT_SOURCE_DIR}/package.json ${PROJECT_SOURCE_DIR}/package-lock.json
            ${TAGSMITH_NPM_DIR}
    COMMAND ${CMAKE_COMMAND} -E chdir ${TAGSMITH_NPM_DIR}
            ${NPM_EXECUTABLE} ci --no-audit --no-fund --loglevel=error
    COMMAND ${CMAKE_COMMAND} -E touch ${TAGSMITH_NPM_STAMP}
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
    DEPENDS ${PROJECT_SOURCE_DIR}/package.json ${PROJECT_SOURCE_DIR}/package-lock.json
    COMMENT "Installing the pinned npm packages (ExifTool, Leaflet)"
    VERBATIM)

# Makes the symbolic link `link` to `target` once the npm packages are in place.
function(tagsmith_link link target)
    string(MAKE_C_IDENTIFIER "${link}" stamp_name)
    set(stamp ${CMAKE_BINARY_DIR}/CMakeFiles/${stamp_name}.stamp)
    get_filename_component(parent ${link} DIRECTORY)
    add_custom_command(
        OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${parent}
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${link}
        COMMAND ${CMAKE_COMMAND} -E create_symlink ${target} ${link}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${TAGSMITH_NPM_STAMP}
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY TAGSMITH_EXIFTOOL_LINKS ${stamp})
endfunction()

# <dir>/Contents/Resources/exiftool is the bundled ExifTool's bin folder, so the script finds its
# lib folder beside it. The map page and Leaflet sit in .../map, as links to the sources and to
# the npm folder, so the page can be edited without a rebuild.
foreach(dir ${CMAKE_BINARY_DIR} ${CMAKE_BINARY_DIR}/tests ${CMAKE_BINARY_DIR}/bench)
    tagsmith_link(${dir}/Contents/Resources/exiftool ${TAGSMITH_EXIFTOOL_DIR})
endforeach()
foreach(dir ${CMAKE_BINARY_DIR} ${CMAKE_BINARY_DIR}/tests)
    tagsmith_link(${dir}/Contents/Resources/map/page ${PROJECT_SOURCE_DIR}/resources/map)
    tagsmith_link(${dir}/Contents/Resources/map/leaflet ${TAGSMITH_LEAFLET_DIR})
endforeach()
get_property(exiftool_links GLOBAL PROPERTY TAGSMITH_EXIFTOOL_LINKS)
add_custom_target(bundled_packages ALL DEPENDS ${TAGSMITH_NPM_STAMP} ${exiftool_links})

# The bundled ExifTool, as tests and benchmarks call it directly.
set(TAGSMITH_BUNDLED_EXIFTOOL ${CMAKE_BINARY_DIR}/Contents/Resources/exiftool/exiftool)
