# The kinds of targets that Tessaly is made of. Their link lines are the architecture: a logic
# library sees Qt Core and nothing of Qt's windows, so the compiler refuses a window in it.

add_library(tessaly_options INTERFACE)
target_compile_options(tessaly_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_compile_definitions(tessaly_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)
if(TESSALY_SANITIZE)
    target_compile_options(tessaly_options INTERFACE
        -fsanitize=${TESSALY_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(tessaly_options INTERFACE -fsanitize=${TESSALY_SANITIZE})
endif()

# tessaly_logic(NAME SOURCES ... LINK ...): rules, texts and counts; Qt Core alone.
function(tessaly_logic name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC Qt6::Core ${ARG_LINK} PRIVATE tessaly_options)
endfunction()

# tessaly_windows(NAME SOURCES ... LINK ...): files named frm* or dlg*, and nothing else.
function(tessaly_windows name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    foreach(source IN LISTS ARG_SOURCES)
        get_filename_component(file ${source} NAME)
        if(NOT file MATCHES "^(frm|dlg).*\\.(h|cpp)$" AND NOT file MATCHES "\\.qrc$")
            message(FATAL_ERROR "${name}: ${file} is no window; only frm* and dlg* may use Qt Widgets")
        endif()
    endforeach()
    add_library(${name} STATIC ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC Qt6::Widgets ${ARG_LINK} PRIVATE tessaly_options)
endfunction()
