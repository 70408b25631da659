# The Debian package: the program's folder is /usr/lib/tessaly, with a link to it on the PATH and
# what a desktop and a reader of its documentation look for.

set(doc_folder share/doc/tessaly)

# compressed(FILE NAME): FILE as Debian wants it, NAME.gz in the build folder.
function(compressed file name)
    set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    add_custom_command(OUTPUT ${output}
        COMMAND gzip -9nc ${CMAKE_CURRENT_SOURCE_DIR}/${file} > ${output}
        DEPENDS ${file} VERBATIM)
    add_custom_target(${name}_gz ALL DEPENDS ${output})
endfunction()

compressed(tessaly.1 tessaly.1)
compressed(changelog changelog)

file(CREATE_LINK ../lib/tessaly/tessaly ${CMAKE_CURRENT_BINARY_DIR}/tessaly SYMBOLIC)

# install_for_debian(FOLDER FILE ...)
function(install_for_debian folder)
    install(FILES ${ARGN} DESTINATION ${folder} COMPONENT debian EXCLUDE_FROM_ALL)
endfunction()

install_for_debian(bin ${CMAKE_CURRENT_BINARY_DIR}/tessaly)
install_for_debian(share/applications tessaly.desktop)
install_for_debian(share/icons/hicolor/scalable/apps tessaly.svg)
install_for_debian(share/man/man1 ${CMAKE_CURRENT_BINARY_DIR}/tessaly.1.gz)
install_for_debian(share/metainfo org.tessaly.Tessaly.metainfo.xml)
install_for_debian(${doc_folder} copyright ../CHANGELOG.md
    ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME tessaly)
# The project has no address of its own to write to.
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Tessaly developers <developers@tessaly.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "kchmviewer, libreoffice-calc")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/prerm)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Tessaly opens an application of Oracle Hyperion Financial Management (HFM)
from the files that HFM extracts, and shows, counts, compares and exports its
metadata and security. It never changes the application.")
execute_process(COMMAND dpkg --print-architecture OUTPUT_VARIABLE CPACK_DEBIAN_ARCHITECTURE
    OUTPUT_STRIP_TRAILING_WHITESPACE)
