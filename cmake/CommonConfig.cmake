# One place for compiler settings: every target links tallimark_options.
# Figures must match to the last digit, so IEEE arithmetic stays exact: no fast-math,
# no host-specific code generation, and no fused multiply-add contraction.
add_library(tallimark_options INTERFACE)
target_compile_features(tallimark_options INTERFACE cxx_std_20)
target_compile_options(tallimark_options INTERFACE
    -Wall -Wextra -Wpedantic -ffp-contract=off -fno-fast-math)
# Fuzzing instruments every library for coverage; the targets themselves add the fuzzer's main.
if(TALLIMARK_FUZZ)
    target_compile_options(tallimark_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
    target_link_options(tallimark_options INTERFACE -fsanitize=address,undefined)
endif()
if(TALLIMARK_SANITIZE)
    target_compile_options(tallimark_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
    target_link_options(tallimark_options INTERFACE -fsanitize=address,undefined)
endif()
# GCC 12 warns falsely about `"text" + std::string` at -O3 (its bug 105329); the warning says
# nothing about our code.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(tallimark_options INTERFACE -Wno-restrict)
endif()
