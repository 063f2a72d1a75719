# SPDX-License-Identifier: MIT
# 32-bit x86 with Debian's cross compiler (g++-i686-linux-gnu). The programs run as they are on a
# 64-bit kernel with the 32-bit loader (libc6-i386, lib32stdc++6).
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER i686-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
list(APPEND CMAKE_FIND_ROOT_PATH /usr/i686-linux-gnu) # beside those that are given
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
