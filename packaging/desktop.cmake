# How desktops know the shell: menu entry, icons, catalogue entry, the kind of a course's files.
set(share ${CMAKE_INSTALL_DATADIR})
set(freedesktop ${CMAKE_CURRENT_SOURCE_DIR}/freedesktop)
install(FILES ${freedesktop}/orvalente.desktop DESTINATION ${share}/applications COMPONENT shell)
install(FILES ${freedesktop}/orvalente.xml DESTINATION ${share}/mime/packages COMPONENT shell)

# The newest entry of CHANGELOG.md is the release that is built.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
file(STRINGS ${CMAKE_SOURCE_DIR}/CHANGELOG.md releases REGEX "^## ")
list(GET releases 0 newest)
if(NOT newest MATCHES "^## ${PROJECT_VERSION} \\(([0-9-]+)\\)$")
    message(FATAL_ERROR "CHANGELOG.md begins with “${newest}”, the project has version ${PROJECT_VERSION}")
endif()
set(ORVALENTE_RELEASE_DATE ${CMAKE_MATCH_1})
set(metainfo org.orvalente.orvalente.metainfo.xml)
configure_file(${freedesktop}/${metainfo}.in ${metainfo} @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${metainfo} DESTINATION ${share}/metainfo COMPONENT shell)

# The sizes of the hicolor theme: those who draw no SVG find pixels.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
set(icon ${CMAKE_SOURCE_DIR}/src/look/icons/orvalente.svg)
install(FILES ${icon} DESTINATION ${share}/icons/hicolor/scalable/apps COMPONENT shell)
set(icons)
foreach(size 16 22 24 32 48 64 96 128 256 512)
    set(pixels ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}/orvalente.png)
    add_custom_command(
        OUTPUT ${pixels}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}
        COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} ${icon} --output ${pixels}
        DEPENDS ${icon})
    list(APPEND icons ${pixels})
    install(FILES ${pixels}
            DESTINATION ${share}/icons/hicolor/${size}x${size}/apps COMPONENT shell)
endforeach()
add_custom_target(icons ALL DEPENDS ${icons})
