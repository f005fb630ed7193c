# Installs in the FHS layout that Debian and other distributions accept, and builds a .deb with
# CPack ("make package"). The executable finds what it ships relative to itself (see
# src/engine/exiftoolpath.h), so a staged install under DESTDIR works as the installed one.
set(TAGSMITH_APP_ID org.tagsmith.Tagsmith)
set(TAGSMITH_LIBEXEC ${CMAKE_INSTALL_LIBEXECDIR}/tagsmith)
set(TAGSMITH_DATA ${CMAKE_INSTALL_DATADIR}/tagsmith)

# The icon, drawn from its SVG in the sizes desktops look for.
add_executable(rendericon ${PROJECT_SOURCE_DIR}/scripts/rendericon.cpp)
target_link_libraries(rendericon PRIVATE tagsmith_options Qt6::Gui Qt6::Svg)
set(icon_svg ${PROJECT_SOURCE_DIR}/resources/icons/${TAGSMITH_APP_ID}.svg)
set(icon_pngs)
foreach(size 48 128 256)
    set(png ${CMAKE_BINARY_DIR}/icons/${size}x${size}/${TAGSMITH_APP_ID}.png)
    add_custom_command(OUTPUT ${png}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons/${size}x${size}
        COMMAND rendericon ${icon_svg} ${size} ${png}
        DEPENDS rendericon ${icon_svg}
        VERBATIM)
    list(APPEND icon_pngs ${png})
    install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

# Debian wants the changelog and the manual page compressed, with no time stamp in the archive.
function(tagsmith_gzip source output)
    add_custom_command(OUTPUT ${output}
        COMMAND sh -c "gzip -9nc '${source}' > '${output}'"
        DEPENDS ${source}
        VERBATIM)
endfunction()
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/doc)
set(changelog_gz ${CMAKE_BINARY_DIR}/doc/changelog.gz)
set(manual_gz ${CMAKE_BINARY_DIR}/doc/tagsmith.1.gz)
tagsmith_gzip(${PROJECT_SOURCE_DIR}/resources/debian/changelog ${changelog_gz})
tagsmith_gzip(${PROJECT_SOURCE_DIR}/resources/tagsmith.1 ${manual_gz})
add_custom_target(install_assets ALL DEPENDS ${icon_pngs} ${changelog_gz} ${manual_gz})

install(TARGETS tagsmith RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# ExifTool: the script and its Perl modules, nothing of the npm package's documentation.
install(PROGRAMS ${TAGSMITH_EXIFTOOL_DIR}/exiftool DESTINATION ${TAGSMITH_LIBEXEC}/exiftool)
install(DIRECTORY ${TAGSMITH_EXIFTOOL_DIR}/lib DESTINATION ${TAGSMITH_LIBEXEC}/exiftool
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
# The script asks env for perl; an installed program names its interpreter.
install(CODE "
    set(script \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${TAGSMITH_LIBEXEC}/exiftool/exiftool\")
    file(READ \"\${script}\" text)
    string(REGEX REPLACE \"^#![^\\n]*\" \"#!/usr/bin/perl\" text \"\${text}\")
    file(WRITE \"\${script}\" \"\${text}\")
")

install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/map/ DESTINATION ${TAGSMITH_DATA}/map/page)
install(DIRECTORY ${TAGSMITH_LEAFLET_DIR}/ DESTINATION ${TAGSMITH_DATA}/map/leaflet
    PATTERN "*.map" EXCLUDE PATTERN "*-src.*" EXCLUDE)

install(FILES ${PROJECT_SOURCE_DIR}/resources/${TAGSMITH_APP_ID}.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${icon_svg} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${PROJECT_SOURCE_DIR}/resources/${TAGSMITH_APP_ID}.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${manual_gz} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_SOURCE_DIR}/resources/debian/copyright ${changelog_gz}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tagsmith)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tagsmith)
set(CPACK_PACKAGE_VENDOR "The Tagsmith developers")
set(CPACK_PACKAGE_CONTACT "The Tagsmith developers <support@tagsmith.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor of photo metadata (EXIF, IPTC, XMP, GPS)")
set(CPACK_PACKAGE_DESCRIPTION
    "Tagsmith edits the metadata of many photographs at once: captions, keywords,\n\
credits, copyright, capture dates, camera settings, GPS positions and maker\n\
notes. It reads and writes every tag through a bundled ExifTool, shifts\n\
capture dates, sets positions on a map or from GPX track logs, keeps presets,\n\
and replaces a file only once its new version is complete and on disk.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://tagsmith.org)
# The shared libraries it links, found by dpkg-shlibdeps, plus what it runs or loads: Perl for
# ExifTool, Qt's image plugins for the previews and its SVG plugins for the icon.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "perl, qt6-image-formats-plugins, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
