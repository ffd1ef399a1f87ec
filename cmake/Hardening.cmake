# SPDX-License-Identifier: GPL-3.0-or-later
# How a release build limits the harm of remaining faults: checked copies of libc (_FORTIFY_SOURCE), checked indexes of the
# standard library, canaries on the stack, no jump of the stack over its guard page, marked jump targets (CET), a random
# address space, and linker tables that are read-only after the start. tests/check_hardening verifies it.

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

string(APPEND CMAKE_CXX_FLAGS_RELWITHDEBINFO
       " -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS -fstack-protector-strong -fstack-clash-protection"
       " -fcf-protection")
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
