# SPDX-License-Identifier: MIT
# Read by cpack before it makes the packages of one kind: each kind has its own components.

# The time of all packed files.
if("$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    set(ENV{SOURCE_DATE_EPOCH} ${CPACK_OVISTO_RELEASED})
endif()

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL ${CPACK_OVISTO_COMPONENTS})
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    # Each description begins with a line of its own.
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY)
    set(CPACK_PRE_BUILD_SCRIPTS ${CPACK_OVISTO_SOURCE}/packaging/debian/FinishTrees.cmake)
else()
    set(CPACK_COMPONENTS_ALL portable)
    set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
    set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
endif()
