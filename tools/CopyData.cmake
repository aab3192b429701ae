# SPDX-License-Identifier: MIT
# Copies the files of the folder FROM into the folder TO, where there are others, and deletes from TO what an earlier copy
# brought there and FROM no longer has. The file COPIED names what was copied.
file(GLOB_RECURSE names RELATIVE "${FROM}" "${FROM}/*")
set(stale)
if(EXISTS "${COPIED}")
    file(STRINGS "${COPIED}" stale)
    list(REMOVE_ITEM stale ${names})
endif()
foreach(name IN LISTS stale)
    file(REMOVE "${TO}/${name}")
endforeach()
file(COPY "${FROM}/" DESTINATION "${TO}")
list(JOIN names "\n" lines)
file(WRITE "${COPIED}" "${lines}\n")
