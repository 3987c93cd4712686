# The programs that published courses bring along: the libraries declared WEB, compiled for wasm32 by
# a second compiler and linked. One has the course's own, the other the simulations, which not every
# pupil opens. Without that compiler (scripts/setup web) everything else is built
# all the same, and the course tool says that it cannot publish.

set(ORVALENTE_WEB_FLAGS --target=wasm32-wasi -std=c++20 -Oz -fno-exceptions 
    -I${CMAKE_SOURCE_DIR}/src -I${CMAKE_SOURCE_DIR}/modules)
set(ORVALENTE_WEB_PROGRAM ${CMAKE_BINARY_DIR}/bin/orvalente-web.wasm)
set(ORVALENTE_WEB_SIMULATIONS ${CMAKE_BINARY_DIR}/bin/orvalente-simulations.wasm)

find_program(ORVALENTE_WEB_COMPILER clang++-19)
set(ORVALENTE_WEB OFF)
if(ORVALENTE_WEB_COMPILER)
    # Its parts are packages of their own.
    file(WRITE ${CMAKE_BINARY_DIR}/web/try.cpp "#include <vector>\nint main() { return std::vector<int>().size(); }\n")
    execute_process(
        COMMAND ${ORVALENTE_WEB_COMPILER} --target=wasm32-wasi -std=c++20 -fno-exceptions
                ${CMAKE_BINARY_DIR}/web/try.cpp -o ${CMAKE_BINARY_DIR}/web/try.wasm
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
    if(result EQUAL 0)
        set(ORVALENTE_WEB ON)
    endif()
endif()
if(NOT ORVALENTE_WEB)
    message(STATUS "no compiler for wasm32: courses cannot be published")
endif()

# Compiles sources for wasm32; the objects are put into the variable.
function(orvalente_web_objects variable)
    set(launcher)
    if(CMAKE_CXX_COMPILER_LAUNCHER)
        set(launcher ${CMAKE_CXX_COMPILER_LAUNCHER})
    endif()
    set(objects)
    foreach(source IN LISTS ARGN)
        file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR} ${source})
        string(REPLACE "/" "-" name ${name})
        set(object ${CMAKE_BINARY_DIR}/web/${name}.o)
        file(RELATIVE_PATH target ${CMAKE_BINARY_DIR} ${object})
        add_custom_command(
            OUTPUT ${object}
            COMMAND ${launcher} ${ORVALENTE_WEB_COMPILER} ${ORVALENTE_WEB_FLAGS} ${ORVALENTE_WARNINGS} -Werror
                    -MD -MF ${object}.d -MT ${target} -c ${source} -o ${object}
            DEPENDS ${source}
            DEPFILE ${object}.d
            COMMENT "Compiling ${name} for wasm32"
            VERBATIM)
        list(APPEND objects ${object})
    endforeach()
    set(${variable} ${objects} PARENT_SCOPE)
endfunction()

# Links objects into a library for browsers.
#   orvalente_web_link(FILE.wasm OBJECTS... [LIBRARY objects...] [FLAGS...])
function(orvalente_web_link file)
    cmake_parse_arguments(ARG "" "" "OBJECTS;LIBRARY;FLAGS" ${ARGN})
    add_custom_command(
        OUTPUT ${file}
        COMMAND ${ORVALENTE_WEB_COMPILER} ${ORVALENTE_WEB_FLAGS} -mexec-model=reactor ${ARG_OBJECTS}
                -Wl,--start-lib ${ARG_LIBRARY} -Wl,--end-lib -o ${file} ${ARG_FLAGS}
        DEPENDS ${ARG_OBJECTS} ${ARG_LIBRARY}
        VERBATIM)
endfunction()

# To be called when all libraries are there.
function(orvalente_web_program)
    if(NOT ORVALENTE_WEB OR ORVALENTE_SANITIZE)
        return()
    endif()
    get_property(sources GLOBAL PROPERTY ORVALENTE_WEB_SOURCES)
    orvalente_web_objects(objects ${sources})
    orvalente_web_link(${ORVALENTE_WEB_PROGRAM} OBJECTS ${objects} FLAGS -Wl,--gc-sections,--strip-all)
    # Of the course's objects the simulations take what they need.
    get_property(sources GLOBAL PROPERTY ORVALENTE_WEB_MODULE_SOURCES)
    orvalente_web_objects(module_objects ${sources})
    orvalente_web_link(${ORVALENTE_WEB_SIMULATIONS} OBJECTS ${module_objects} LIBRARY ${objects}
                       FLAGS -Wl,--gc-sections,--strip-all)
    add_custom_target(web_program ALL
                      DEPENDS ${ORVALENTE_WEB_PROGRAM} ${ORVALENTE_WEB_SIMULATIONS})
    if(ORVALENTE_TESTS)
        # With every function, whether the program calls it or not, and what only the tests call.
        orvalente_web_objects(test_objects ${CMAKE_SOURCE_DIR}/tests/web/numbers.cpp)
        set(all ${CMAKE_BINARY_DIR}/web/all.wasm)
        orvalente_web_link(${all} OBJECTS ${objects} ${test_objects} FLAGS -Wl,--no-gc-sections)
        add_custom_target(web_program_tests ALL DEPENDS ${all})
    endif()
endfunction()
