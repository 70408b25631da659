# Run while the portable folder is installed: copies the libraries that `program` and
# `plugin_files` need, except those of the system itself, into lib/.
file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES ${program}
    LIBRARIES ${plugin_files}
    RESOLVED_DEPENDENCIES_VAR libraries
    UNRESOLVED_DEPENDENCIES_VAR missing
    POST_INCLUDE_REGEXES "/lib(Qt6|icu|xlsxwriter|double-conversion|pcre2|b2|md4c|minizip|zstd|gomp|ts)"
        "/libxcb-(cursor|icccm|image|keysyms|render-util|util|xinerama|xkb)" "/libxkbcommon"
    POST_EXCLUDE_REGEXES ".*")
if(missing)
    message(FATAL_ERROR "These libraries are missing: ${missing}")
endif()
foreach(library IN LISTS libraries)
    file(INSTALL ${library} DESTINATION ${CMAKE_INSTALL_PREFIX}/lib FOLLOW_SYMLINK_CHAIN)
endforeach()
