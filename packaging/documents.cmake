# Manuals, manual pages, and the papers that every package has.
set(documents ${CMAKE_CURRENT_BINARY_DIR}/documents)
file(MAKE_DIRECTORY ${documents})

# Debian wants these compressed, without the time and the name that gzip would put in.
function(orvalente_compressed source result)
    add_custom_command(
        OUTPUT ${result}
        COMMAND gzip -9nc ${source} > ${result}
        DEPENDS ${source})
endfunction()

orvalente_compressed(${CMAKE_SOURCE_DIR}/docs/orvalente.1 ${documents}/orvalente.1.gz)
orvalente_compressed(${CMAKE_SOURCE_DIR}/docs/orvalente-cours.1 ${documents}/orvalente-cours.1.gz)
install(FILES ${documents}/orvalente.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT shell)
install(FILES ${documents}/orvalente-cours.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)

# Debian's own form of the changes is made of what everybody reads.
add_custom_command(
    OUTPUT ${documents}/changelog
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog-of ${CMAKE_SOURCE_DIR}/CHANGELOG.md
            > ${documents}/changelog
    DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md debian/changelog-of)
orvalente_compressed(${documents}/changelog ${documents}/changelog.gz)
add_custom_target(package_documents ALL
    DEPENDS ${documents}/changelog.gz ${documents}/orvalente.1.gz ${documents}/orvalente-cours.1.gz)

# The name of the package that holds a component.
set(package_of_shell orvalente)
set(package_of_modules orvalente-modules)
set(package_of_course orvalente-cours-demonstration)
set(package_of_tool orvalente-cours)
set(package_of_manuals orvalente-doc)
set(components shell modules course tool manuals)
foreach(component IN LISTS components)
    set(package ${package_of_${component}})
    install(FILES debian/copyright ${documents}/changelog.gz
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
    # What lintian is told to accept, each with its reason.
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/${package}.lintian-overrides)
        install(FILES debian/${package}.lintian-overrides
                DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${package}
                COMPONENT ${component})
    endif()
endforeach()

# For who writes courses; what is for developers stays with the sources.
set(manuals calculatrice check course-format cours langage manuel-auteur markdown publier tests)
list(TRANSFORM manuals REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/docs/\\1.md")
set(manuals_dir ${CMAKE_INSTALL_DATADIR}/doc/${package_of_manuals})
install(FILES ${manuals} DESTINATION ${manuals_dir} COMPONENT manuals)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/gallery DESTINATION ${manuals_dir} COMPONENT manuals)
