# The demonstration course, compiled by our own tool. Its modules and their exercises install
# themselves beside it (modules/CMakeLists.txt).
set(course_dir ${CMAKE_INSTALL_DATADIR}/orvalente/course)
set(course ${CMAKE_BINARY_DIR}/course)
file(GLOB_RECURSE course_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/course/*)
add_custom_command(
    OUTPUT ${course}.built
    COMMAND orvalente-cours build ${CMAKE_SOURCE_DIR}/course -o ${course}
    COMMAND ${CMAKE_COMMAND} -E touch ${course}.built
    DEPENDS orvalente-cours ${course_sources}
    COMMENT "Building the demonstration course")
add_custom_target(demonstration_course ALL DEPENDS ${course}.built)
install(DIRECTORY ${course}/ DESTINATION ${course_dir} COMPONENT course PATTERN ".built" EXCLUDE)

# The status file tells the kind of installation. Nobody writes this one once the course is a part of
# the system: each person's shell then keeps one of its own (src/shell/status_place.h).
set(status_file ${CMAKE_CURRENT_BINARY_DIR}/TEMPKX.TMP)
add_custom_command(
    OUTPUT ${status_file}
    COMMAND ${CMAKE_SOURCE_DIR}/scripts/status-file ${status_file} complète
    DEPENDS ${CMAKE_SOURCE_DIR}/scripts/status-file)
add_custom_target(installed_status_file ALL DEPENDS ${status_file})
install(FILES ${status_file} DESTINATION ${course_dir} COMPONENT course)
