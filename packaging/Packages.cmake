# SPDX-License-Identifier: MIT
# What is installed, and the packages made of it: `cpack -G DEB` and `cpack -G TGZ` in the build folder.
#
# A component is a Debian package: window, cli, data (what both programs need) and dev (the library). The component
# portable is the folder that `cpack -G TGZ` packs: the programs with their data beside them.
set(desktopId org.castelmar.ovisto)
set(portable COMPONENT portable EXCLUDE_FROM_ALL)
set(handbookAndIcons PATTERN help EXCLUDE PATTERN icons EXCLUDE)

install(TARGETS ovisto-cli COMPONENT cli)
install(TARGETS ovisto-cli RUNTIME DESTINATION . ${portable})
install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ovisto COMPONENT data ${handbookAndIcons})
install(DIRECTORY data/ DESTINATION . ${portable})
install(FILES LICENSE CHANGELOG.md DESTINATION . ${portable})

if(OVISTO_UI)
    install(TARGETS ovisto-window COMPONENT window)
    install(TARGETS ovisto-window RUNTIME DESTINATION . ${portable})
    install(DIRECTORY data/help DESTINATION ${CMAKE_INSTALL_DATADIR}/ovisto COMPONENT window)
    # Desktops look for the icons of programs here, and so does the window.
    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    foreach(size 16 22 24 32 48 64 128 256 512)
        install(FILES data/icons/ovisto-${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME ${desktopId}.png
                COMPONENT window)
    endforeach()
    install(FILES data/icons/ovisto.svg DESTINATION ${icons}/scalable/apps RENAME ${desktopId}.svg COMPONENT window)
    install(FILES packaging/desktop/${desktopId}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
            COMPONENT window)
    install(FILES ${CMAKE_BINARY_DIR}/${desktopId}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
            COMPONENT window)
endif()

# Older than each revision of a distribution's own packages, which count from 1.
set(revision 0.1)

# What CHANGELOG.md says, in the form that a file needs.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md)
function(releases form result)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env TZ=UTC LC_ALL=C
                            awk -v form=${form} -v revision=${revision} -f ${CMAKE_SOURCE_DIR}/packaging/changelog.awk
                            ${CMAKE_SOURCE_DIR}/CHANGELOG.md
                    OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${text}" PARENT_SCOPE)
endfunction()
releases(appstream releases)
configure_file(packaging/desktop/${desktopId}.metainfo.xml.in ${CMAKE_BINARY_DIR}/${desktopId}.metainfo.xml @ONLY)
releases(debian changelog)
file(CONFIGURE OUTPUT changelog.Debian CONTENT "${changelog}" @ONLY)
releases(epoch epoch)
string(STRIP "${epoch}" OVISTO_RELEASED)

set(CPACK_PACKAGE_NAME ovisto)
set(CPACK_PACKAGE_VENDOR "The Ovisto authors")
set(CPACK_PACKAGE_CONTACT "The Ovisto authors <authors@ovisto.invalid>")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
string(TOLOWER ovisto-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR} CPACK_PACKAGE_FILE_NAME)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/packaging/Generator.cmake)
# Both also run in cpack, which knows variables of this kind only.
set(CPACK_OVISTO_RELEASED ${OVISTO_RELEASED})
set(CPACK_OVISTO_SOURCE ${CMAKE_SOURCE_DIR})
set(CPACK_OVISTO_CHANGELOG ${CMAKE_BINARY_DIR}/changelog.Debian)

get_cmake_property(CPACK_OVISTO_COMPONENTS COMPONENTS)
list(REMOVE_ITEM CPACK_OVISTO_COMPONENTS portable)

set(CPACK_DEBIAN_PACKAGE_RELEASE ${revision})
set(sameVersion "(= ${PROJECT_VERSION}-${revision})")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SOURCE ovisto)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(about
"Ovisto shows and changes what is written inside JPEG photographs: camera and
lens, date, exposure, title, comments, keywords, and everything else in their
Exif data. The picture is never compressed again, and a save keeps everything
that was not edited byte for byte.")

set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME ovisto)
set(CPACK_DEBIAN_WINDOW_PACKAGE_DEPENDS "ovisto-data ${sameVersion}")
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_WINDOW_PACKAGE_SUGGESTS "ovisto-cli")
set(CPACK_DEBIAN_WINDOW_DESCRIPTION
"editor for the metadata of JPEG photographs
${about}
.
This package contains the program with a window, and its handbook.")

set(CPACK_DEBIAN_CLI_PACKAGE_NAME ovisto-cli)
set(CPACK_DEBIAN_CLI_PACKAGE_DEPENDS "ovisto-data ${sameVersion}")
set(CPACK_DEBIAN_CLI_DESCRIPTION
"command-line editor for the metadata of JPEG photographs
${about}
.
This package contains the program for terminals and scripts. It shows, changes,
searches and reports on thousands of photographs at once, and needs no display.")

set(CPACK_DEBIAN_DATA_PACKAGE_NAME ovisto-data)
set(CPACK_DEBIAN_DATA_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DATA_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DATA_DESCRIPTION
"editor for the metadata of JPEG photographs - data files
${about}
.
This package contains what the other packages need: the dictionary of tags, the
style sheets for reports, and the list of keywords.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libovisto-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
string(CONCAT CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
       "ovisto-data ${sameVersion}, libxml2-dev, libxslt1-dev, libpcre2-dev, libunistring-dev, "
       "libjpeg62-turbo-dev | libjpeg-dev, pkg-config")
set(CPACK_DEBIAN_DEV_DESCRIPTION
"editor for the metadata of JPEG photographs - library
${about}
.
This package contains the library that the programs are made of, its headers,
and the files with which CMake finds it.")

include(CPack)
