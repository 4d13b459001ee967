# Warnings, sanitizers and the language standard, in one place: link rxmap_cxx14 or rxmap_cxx17.

add_library(rxmap_compile_options INTERFACE)
target_compile_options(rxmap_compile_options INTERFACE
    # Wherever a point is tested against an edge it must round alike.
    -ffp-contract=off
    -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor $<$<BOOL:${RXMAP_WERROR}>:-Werror>)
target_compile_definitions(rxmap_compile_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x050900)
if(RXMAP_SANITIZE)
    target_compile_options(rxmap_compile_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -g1 -O1)
    # With some 200 programs to link, the quicker linker.
    target_link_options(rxmap_compile_options INTERFACE -fsanitize=address,undefined -fuse-ld=gold)
endif()

# The plug-in and the host interfaces keep to what the oldest host kits compile.
add_library(rxmap_cxx14 INTERFACE)
target_compile_features(rxmap_cxx14 INTERFACE cxx_std_14)
target_link_libraries(rxmap_cxx14 INTERFACE rxmap_compile_options)

add_library(rxmap_cxx17 INTERFACE)
target_compile_features(rxmap_cxx17 INTERFACE cxx_std_17)
target_link_libraries(rxmap_cxx17 INTERFACE rxmap_compile_options)
