# SPDX-License-Identifier: MIT
# Run by cpack when the files of the Debian packages are in their folders, one a component: adds what Debian wants beside
# them, in its form.
unset(ENV{DESTDIR}) # the folders are named in full
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(tree ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr)
    set(documents ${tree}/share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    file(INSTALL ${CPACK_OVISTO_SOURCE}/packaging/debian/copyright ${CPACK_OVISTO_CHANGELOG} DESTINATION ${documents}
         MESSAGE_NEVER)
    # Manual pages and changelogs are compressed, with no time in the compressed file.
    file(GLOB pages ${tree}/share/man/man*/*.[1-8])
    execute_process(COMMAND gzip -9n ${documents}/changelog.Debian ${pages} COMMAND_ERROR_IS_FATAL ANY)
    # Whoever makes the packages may keep new folders to themselves (umask).
    file(CHMOD_RECURSE ${tree} DIRECTORY_PERMISSIONS ${CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
endforeach()
