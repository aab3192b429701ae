# SPDX-License-Identifier: MIT
# Finds libunistring, which brings no description of itself: the target Unistring::Unistring.
find_path(UNISTRING_INCLUDE_DIR unicase.h)
find_library(UNISTRING_LIBRARY unistring)
mark_as_advanced(UNISTRING_INCLUDE_DIR UNISTRING_LIBRARY)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Unistring REQUIRED_VARS UNISTRING_LIBRARY UNISTRING_INCLUDE_DIR)
if(Unistring_FOUND AND NOT TARGET Unistring::Unistring)
    add_library(Unistring::Unistring UNKNOWN IMPORTED)
    set_target_properties(Unistring::Unistring PROPERTIES IMPORTED_LOCATION "${UNISTRING_LIBRARY}"
                                                          INTERFACE_INCLUDE_DIRECTORIES "${UNISTRING_INCLUDE_DIR}")
endif()
