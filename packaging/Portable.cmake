# The portable folder: the program with the libraries and plug-ins of Qt that it needs, so that it
# runs from anywhere on a Linux desktop that is not older than the one it was built on.

get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${qmake} -query QT_INSTALL_PLUGINS OUTPUT_VARIABLE plugins
    OUTPUT_STRIP_TRAILING_WHITESPACE)

set(wanted_plugins
    iconengines/libqsvgicon.so
    imageformats/libqsvg.so
    platforms/libqoffscreen.so
    platforms/libqxcb.so)
foreach(plugin IN LISTS wanted_plugins)
    get_filename_component(folder ${plugin} DIRECTORY)
    install(FILES ${plugins}/${plugin} DESTINATION plugins/${folder} COMPONENT portable
        EXCLUDE_FROM_ALL)
    list(APPEND plugin_files ${plugins}/${plugin})
endforeach()
install(FILES qt.conf ../LICENSE ../CHANGELOG.md ../README.md DESTINATION . COMPONENT portable
    EXCLUDE_FROM_ALL)
install(FILES tessaly.desktop tessaly.svg DESTINATION share COMPONENT portable EXCLUDE_FROM_ALL)

# What every desktop has, or must have its own of, stays out: the C library, X, GL and fonts.
install(CODE "
    set(program \"$<TARGET_FILE:tessaly>\")
    set(plugin_files \"${plugin_files}\")
    " COMPONENT portable EXCLUDE_FROM_ALL)
install(SCRIPT CopyLibraries.cmake COMPONENT portable EXCLUDE_FROM_ALL)
# The old kind of search path holds for what the libraries themselves need, too.
set_target_properties(tessaly PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
target_link_options(tessaly PRIVATE -Wl,--disable-new-dtags)
