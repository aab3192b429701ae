# SPDX-License-Identifier: MIT
# How a release build is compiled and linked: with what Debian asks of its packages, so that the tests and the benchmarks
# run what is packaged. The other builds are for finding faults, and some of this needs a compiler that optimises.
set(release "$<CONFIG:Release>")

# Buffers on the stack and calls with a known buffer are checked. Debian's compiler makes position-independent programs
# without being asked; their tables of addresses are read-only before main() runs.
add_compile_options($<${release}:-fstack-protector-strong> $<${release}:-Werror=format-security>)
add_link_options($<${release}:LINKER:-z,relro,-z,now>)
if(NOT "$ENV{CXXFLAGS} $ENV{CPPFLAGS} ${CMAKE_CXX_FLAGS}" MATCHES "_FORTIFY_SOURCE")
    add_compile_definitions($<${release}:_FORTIFY_SOURCE=2>)
endif()

# The same source gives the same bytes, wherever and whenever it is built.
add_compile_options($<${release}:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>
                    $<${release}:-ffile-prefix-map=${CMAKE_BINARY_DIR}=build> $<${release}:-Werror=date-time>)
