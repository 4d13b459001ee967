# Warnings, sanitizers and the language standard, in one place: link rxmap_cxx14 or rxmap_cxx17.

# Qt's macros omit their last arguments, which newer versions of clang call an extension from C++20.
set(RXMAP_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Wshadow
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments;-Wno-c++20-extensions>)
if(RXMAP_WERROR)
    list(APPEND RXMAP_WARNINGS -Werror)
endif()
set(RXMAP_DEFINITIONS QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x050900)
# Wherever a point is tested against an edge, rounding must be the same, also in tests.
set(RXMAP_ROUNDING -ffp-contract=off)
# At -O2, g++ 12 puts two doubles that are converted to float and back into one vector and drops the conversions.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fno-tree-slp-vectorize RXMAP_HAS_NO_TREE_SLP_VECTORIZE)
if(RXMAP_HAS_NO_TREE_SLP_VECTORIZE)
    list(APPEND RXMAP_ROUNDING -fno-tree-slp-vectorize)
endif()

add_library(rxmap_compile_options INTERFACE)
target_compile_options(rxmap_compile_options INTERFACE ${RXMAP_ROUNDING} ${RXMAP_WARNINGS})
target_compile_definitions(rxmap_compile_options INTERFACE ${RXMAP_DEFINITIONS})
# What ships stops at a buffer overflow instead of going on, and nobody can redirect calls between its libraries.
target_compile_options(rxmap_compile_options INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
target_link_options(rxmap_compile_options INTERFACE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
if(RXMAP_SANITIZE)
    target_compile_options(rxmap_compile_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -g1 -O1)
    target_link_options(rxmap_compile_options INTERFACE -fsanitize=address,undefined)
    # GLU calls its callbacks through pointers to functions of another type; clang would object if GLU were
    # instrumented.
    target_compile_options(rxmap_compile_options INTERFACE $<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function>)
endif()
if(RXMAP_THREADS)
    target_compile_options(rxmap_compile_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer -g1 -O1)
    target_link_options(rxmap_compile_options INTERFACE -fsanitize=thread)
endif()
if(RXMAP_FUZZ)
    target_compile_options(rxmap_compile_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The plug-in and the host interfaces use only what the oldest host kits can compile.
add_library(rxmap_cxx14 INTERFACE)
target_compile_features(rxmap_cxx14 INTERFACE cxx_std_14)
target_link_libraries(rxmap_cxx14 INTERFACE rxmap_compile_options)

add_library(rxmap_cxx17 INTERFACE)
target_compile_features(rxmap_cxx17 INTERFACE cxx_std_17)
target_link_libraries(rxmap_cxx17 INTERFACE rxmap_compile_options)
