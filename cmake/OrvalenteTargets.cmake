# Every library, program and test is declared through these functions, so that language level,
# warnings and sanitizers are the same everywhere: orvalente_flags has them, orvalente_options also
# finds the headers of src/.

add_library(orvalente_flags INTERFACE)
target_compile_features(orvalente_flags INTERFACE cxx_std_20)
target_compile_definitions(orvalente_flags INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH
                           QT_NO_CAST_FROM_BYTEARRAY QT_DISABLE_DEPRECATED_BEFORE=0x060400)
# Errors where we work. Where the program is built to be used they are not: optimising, GCC 12 sees
# strings copied over themselves that are not (its bug 105651), and nobody's start may fail of that.
set(ORVALENTE_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(orvalente_flags INTERFACE ${ORVALENTE_WARNINGS} $<$<NOT:$<CONFIG:Release>>:-Werror>)
endif()
if(ORVALENTE_SANITIZE)
    target_compile_options(orvalente_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(orvalente_flags INTERFACE -fsanitize=address,undefined)
    # GCC warns of values that the instrumented code only seems to leave unset; the other presets
    # keep this warning.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(orvalente_flags INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()

add_library(orvalente_options INTERFACE)
target_link_libraries(orvalente_options INTERFACE orvalente_flags)
target_include_directories(orvalente_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# Whether a library or a test can be linked: in a build without Qt, what links to something that is not
# there is not there either. With Qt everything is there, and a wrong name is a fault of the linker's.
function(orvalente_can_link result)
    set(${result} ON PARENT_SCOPE)
    foreach(link IN LISTS ARGN)
        if(NOT ORVALENTE_QT AND NOT TARGET ${link})
            set(${result} OFF PARENT_SCOPE)
        endif()
    endforeach()
endfunction()

# A folder of src/ as a static library. It links only what it names: a stray use of a higher layer
# fails to link.
#   orvalente_library(markup SOURCES a.cpp b.cpp LINKS text platform)
# WEB: it needs nothing but the standard library, no files and no Qt, so that browsers can have it
# too. It links libraries of its kind only, and OrvalenteWeb.cmake compiles it for wasm32.
function(orvalente_library name)
    cmake_parse_arguments(ARG "WEB" "" "SOURCES;LINKS" ${ARGN})
    orvalente_can_link(possible ${ARG_LINKS})
    if(NOT possible)
        return()
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC orvalente_options ${ARG_LINKS})
    if(ARG_WEB)
        orvalente_for_browsers(${name} ORVALENTE_WEB_SOURCES SOURCES ${ARG_SOURCES} LINKS ${ARG_LINKS})
    endif()
endfunction()

# Compiles for Windows what needs no Qt, and runs its tests under Wine, where these are installed.
function(orvalente_windows_test)
    add_test(NAME windows.compiles COMMAND ${CMAKE_SOURCE_DIR}/scripts/windows compile)
    add_test(NAME windows.passesItsTests COMMAND ${CMAKE_SOURCE_DIR}/scripts/windows try)
    set_tests_properties(windows.compiles windows.passesItsTests PROPERTIES
        SKIP_RETURN_CODE 77 TIMEOUT 3600)
    set_tests_properties(windows.passesItsTests PROPERTIES DEPENDS windows.compiles)
endfunction()

# Lets a program for browsers have a library too: the one whose sources that global property holds.
function(orvalente_for_browsers name program)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    foreach(link IN LISTS ARG_LINKS)
        get_target_property(web ${link} ORVALENTE_WEB)
        if(NOT web)
            message(FATAL_ERROR "${name} is for browsers too, but ${link}, which it links, is not")
        endif()
    endforeach()
    set_target_properties(${name} PROPERTIES ORVALENTE_WEB ON)
    list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    set_property(GLOBAL APPEND PROPERTY ${program} ${ARG_SOURCES})
endfunction()

# The tests of one folder, as one GoogleTest binary whose cases CTest lists one by one.
#   orvalente_test(text_tests SOURCES a_test.cpp LINKS text)
# QT: the binary brings its own main with an offscreen application (tests/support).
# DISPLAYS: some cases start X servers of their own; they run one at a time.
function(orvalente_test name)
    cmake_parse_arguments(ARG "QT;DISPLAYS" "" "SOURCES;LINKS" ${ARGN})
    orvalente_can_link(possible ${ARG_LINKS})
    if(NOT possible)
        return()
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    if(ARG_QT)
        target_link_libraries(${name} PRIVATE orvalente_options ${ARG_LINKS} test_support GTest::gmock)
    else()
        target_link_libraries(${name} PRIVATE orvalente_options ${ARG_LINKS} GTest::gmock GTest::gtest_main)
    endif()
    if(CMAKE_CROSSCOMPILING)
        return() # scripts/windows runs the binaries whole
    endif()
    set(lock)
    if(ARG_DISPLAYS)
        set(lock RESOURCE_LOCK display)
    endif()
    gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_MODE PRE_TEST
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 120 ${lock})
endfunction()
