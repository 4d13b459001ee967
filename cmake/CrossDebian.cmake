# Toolchain: Debian's cross compilers, with a Debian of another architecture that lies in a folder. The environment says
# which and where: RXMAP_TRIPLET (aarch64-linux-gnu, arm-linux-gnueabihf), RXMAP_PROCESSOR (aarch64, arm),
# RXMAP_SYSROOT.
set(triplet "$ENV{RXMAP_TRIPLET}")
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR "$ENV{RXMAP_PROCESSOR}")
set(CMAKE_SYSROOT "$ENV{RXMAP_SYSROOT}")
set(CMAKE_LIBRARY_ARCHITECTURE "${triplet}")
set(CMAKE_CXX_COMPILER "${triplet}-g++")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Libraries that only other libraries need; two of them have folders of their own, since no alternative was chosen.
foreach(folder "" /blas /lapack)
    string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -Wl,-rpath-link,${CMAKE_SYSROOT}/usr/lib/${triplet}${folder}")
endforeach()
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")
set(CMAKE_CROSSCOMPILING_EMULATOR "qemu-${CMAKE_SYSTEM_PROCESSOR};-L;${CMAKE_SYSROOT}")
