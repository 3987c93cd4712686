# Headers of the system that nearly every source reads are compiled once for all: parsing them is
# half of what the compiler does here. Only headers of the system, which do not change from day to
# day, so that a rebuild reads less too and never reads them anew. What of ours they would hide, a
# forgotten #include, the sanitizers' build finds, which goes without them.
option(ORVALENTE_PRECOMPILED "Compile the headers of the system once" ON)

set(ORVALENTE_STD_HEADERS
    <algorithm> <array> <charconv> <chrono> <cmath> <cstddef> <cstdint> <filesystem> <functional>
    <limits> <map> <memory> <optional> <set> <span> <string> <string_view> <system_error>
    <unordered_map> <utility> <variant> <vector>)
set(ORVALENTE_QT_HEADERS
    <QAbstractButton> <QApplication> <QBoxLayout> <QBuffer> <QByteArray> <QCoreApplication> <QDialog>
    <QDir> <QFile> <QFileInfo> <QFontMetricsF> <QHash> <QImage> <QJsonObject> <QKeyEvent> <QLabel>
    <QPainter> <QPainterPath> <QPointer> <QProcess> <QScreen> <QSet> <QStandardPaths> <QString>
    <QStringList> <QTextDocument> <QTimer> <QUrl> <QWidget> <QXmlStreamWriter>)
set(ORVALENTE_TEST_HEADERS <fstream> <sstream> <gmock/gmock.h> <gtest/gtest.h>)

# One set of precompiled headers. GCC takes it for a source only if that has all the definitions and
# the code model (PIC) that the set was compiled with, so of Qt the set has no more than Qt6::Core,
# which all users of Qt have; of the other libraries it finds the headers alone.
function(orvalente_precompiled_set name)
    cmake_parse_arguments(ARG "QT;PIC;TESTS" "" "" ${ARGN})
    set(headers ${ORVALENTE_STD_HEADERS})
    file(WRITE ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp "")
    add_library(${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp)
    target_link_libraries(${name} PRIVATE orvalente_options)
    if(ARG_QT)
        list(APPEND headers ${ORVALENTE_QT_HEADERS})
        target_link_libraries(${name} PRIVATE Qt6::Core)
        foreach(library Gui Widgets)
            target_include_directories(${name} SYSTEM PRIVATE
                $<TARGET_PROPERTY:Qt6::${library},INTERFACE_INCLUDE_DIRECTORIES>)
        endforeach()
    endif()
    if(ARG_TESTS)
        list(APPEND headers ${ORVALENTE_TEST_HEADERS})
        target_link_libraries(${name} PRIVATE GTest::gmock)
    endif()
    if(ARG_PIC)
        set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    endif()
    target_precompile_headers(${name} PRIVATE ${headers})
endfunction()

# Whether a target, or what its libraries hand on to their users, links one whose name begins so.
#   orvalente_uses_target(qt search_forms "Qt6::" LINK_LIBRARIES)
function(orvalente_uses_target result target wanted property)
    set(${result} OFF PARENT_SCOPE)
    get_target_property(links ${target} ${property})
    foreach(link IN LISTS links)
        if(link MATCHES "^${wanted}")
            set(${result} ON PARENT_SCOPE)
            return()
        endif()
        if(TARGET ${link})
            orvalente_uses_target(found ${link} ${wanted} INTERFACE_LINK_LIBRARIES)
            if(found)
                set(${result} ON PARENT_SCOPE)
                return()
            endif()
        endif()
    endforeach()
endfunction()

# Gives each target of a folder, and of those below, the set that fits it.
function(orvalente_precompile_folder folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(NOT type MATCHES "^(STATIC_LIBRARY|MODULE_LIBRARY|EXECUTABLE)$")
            continue()
        endif()
        orvalente_uses_target(mpv ${target} "PkgConfig::MPV" LINK_LIBRARIES)
        if(mpv) # which brings a definition along that no set has
            continue()
        endif()
        orvalente_uses_target(qt ${target} "Qt6::" LINK_LIBRARIES)
        orvalente_uses_target(tests ${target} "GTest::" LINK_LIBRARIES)
        get_target_property(pic ${target} POSITION_INDEPENDENT_CODE)
        if(qt AND tests)
            set(set precompiled_qt_tests)
        elseif(tests)
            set(set precompiled_tests)
        elseif(qt)
            set(set precompiled_qt)
        elseif(pic)
            set(set precompiled_pic)
        else()
            set(set precompiled_std)
        endif()
        target_precompile_headers(${target} REUSE_FROM ${set})
    endforeach()
    get_property(below DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(folder IN LISTS below)
        orvalente_precompile_folder(${folder})
    endforeach()
endfunction()

# Called when all targets are there.
function(orvalente_precompile)
    if(NOT ORVALENTE_PRECOMPILED OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU" OR CMAKE_CROSSCOMPILING)
        return()
    endif()
    orvalente_precompiled_set(precompiled_std)
    orvalente_precompiled_set(precompiled_pic PIC)
    orvalente_precompiled_set(precompiled_qt QT)
    if(ORVALENTE_TESTS)
        find_package(GTest REQUIRED)
        orvalente_precompiled_set(precompiled_tests TESTS)
        orvalente_precompiled_set(precompiled_qt_tests QT TESTS)
    endif()
    orvalente_precompile_folder(${CMAKE_SOURCE_DIR})
endfunction()
