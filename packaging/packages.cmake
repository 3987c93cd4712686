# The Debian packages, by CPack: what they are called, need and replace.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGE_NAME orvalente)
set(CPACK_PACKAGE_VENDOR Orvalente)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has one of its own
set(CPACK_PACKAGE_CONTACT "Orvalente <equipe@orvalente.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${ORVALENTE_HOMEPAGE})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)

# A package of a component: what it is, and the packages of others that it needs to find at run time
# (dpkg-shlibdeps sees what is linked).
#   orvalente_package(tool SUMMARY "…" DESCRIPTION "…" DEPENDS a b RECOMMENDS c SUGGESTS d [NATIVE])
# NATIVE: it holds programs for one architecture.
function(orvalente_package component)
    cmake_parse_arguments(ARG NATIVE "SUMMARY;DESCRIPTION" "DEPENDS;RECOMMENDS;SUGGESTS" ${ARGN})
    string(TOUPPER ${component} upper)
    set(fields NAME ${package_of_${component}})
    if(ARG_NATIVE)
        list(APPEND fields SHLIBDEPS ON)
    else()
        list(APPEND fields SHLIBDEPS OFF ARCHITECTURE all)
    endif()
    foreach(relation DEPENDS RECOMMENDS SUGGESTS)
        if(ARG_${relation})
            list(JOIN ARG_${relation} ", " packages)
            list(APPEND fields ${relation} "${packages}")
        endif()
    endforeach()
    # Until 0.1 everything was in the one package `orvalente`.
    if(NOT component STREQUAL shell)
        list(APPEND fields BREAKS "orvalente (<< 0.2)" REPLACES "orvalente (<< 0.2)")
    endif()
    while(fields)
        list(POP_FRONT fields field value)
        set(CPACK_DEBIAN_${upper}_PACKAGE_${field} "${value}" PARENT_SCOPE)
    endwhile()
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${ARG_SUMMARY}\n${ARG_DESCRIPTION}" PARENT_SCOPE)
endfunction()

# Pages are drawn with these faces, on every platform of Qt.
set(drawing qt6-qpa-plugins fonts-liberation2 fonts-urw-base35)
set(drawing_recommends fonts-symbola fonts-comic-neue fonts-dejavu-core)
# Read aloud by whatever voice there is; without one the shell says so.
set(voice qt6-speech-speechd-plugin speech-dispatcher-espeak-ng)
set(same_version "(= ${PROJECT_VERSION})")

orvalente_package(shell NATIVE
    SUMMARY "physics and chemistry course for secondary schools"
    DESCRIPTION "Pages, short videos, simulations, tests and a scientific calculator, in
French. This package holds the program that shows a course: any course that
was made with orvalente-cours will do."
    DEPENDS ${drawing}
    RECOMMENDS orvalente-cours-demonstration ${drawing_recommends} ${voice} qt6-translations-l10n
    SUGGESTS orvalente-doc wine qt6-wayland)
set(CPACK_DEBIAN_SHELL_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/debian/postinst)

orvalente_package(modules NATIVE
    SUMMARY "simulations for Orvalente's physics and chemistry course"
    DESCRIPTION "The programs that pages of the demonstration course start: an optical bench
with a lens, a reaction with its limiting reactant and the motion of a
projectile, each with exercises, and a page of useful links."
    DEPENDS qt6-qpa-plugins fonts-liberation2
    RECOMMENDS "orvalente-cours-demonstration")

orvalente_package(course
    SUMMARY "demonstration course of physics and chemistry, in French"
    DESCRIPTION "Lessons, exercises with their answers, tests and films for secondary
schools, which the program orvalente shows."
    RECOMMENDS orvalente orvalente-modules)

orvalente_package(tool NATIVE
    SUMMARY "writes, checks and publishes courses for Orvalente"
    DESCRIPTION "The command-line tool with which teachers write courses of pages, tests and
pictures, in Markdown or in the page language: it compiles, checks, draws,
prints and searches them, and publishes them as web sites."
    DEPENDS ${drawing}
    RECOMMENDS "orvalente ${same_version}" orvalente-doc ${drawing_recommends})

orvalente_package(manuals
    SUMMARY "manuals for authors of Orvalente's courses, in French"
    DESCRIPTION "How to write a course from nothing, to adapt the demonstration course, the
page language with a picture of every directive, and the formats of the
files."
    SUGGESTS orvalente-cours)
set(CPACK_DEBIAN_MANUALS_PACKAGE_SECTION doc)

include(CPack)
