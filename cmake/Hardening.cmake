# What the delivered program is built with so that a fault in its memory ends it instead of serving somebody. For Release
# alone: the sanitizers watch the same places themselves, and _FORTIFY_SOURCE asks for optimization.
# tests/hardening.py looks for all of this in the finished file.
add_library(calora-hardening INTERFACE)
if(NOT CMAKE_BUILD_TYPE STREQUAL "Release" OR CALORA_SANITIZE OR CALORA_COVERAGE)
    return()
endif()

# Level 3 where compiler and headers heed it: gcc from 12 on, clang; the headers of MinGW know 2.
include(CheckCXXSourceCompiles)
set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
check_cxx_source_compiles("
    #include <cstdio>
    #if !defined(__USE_FORTIFY_LEVEL) || __USE_FORTIFY_LEVEL < 3
    #error lower
    #endif
    int main() {}" CALORA_FORTIFY_3)
unset(CMAKE_REQUIRED_FLAGS)
set(fortify 2)
if(CALORA_FORTIFY_3)
    set(fortify 3)
endif()
target_compile_options(calora-hardening INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${fortify})

if(WIN32)
    # Not here: -fstack-clash-protection, at which gcc 12 fails as soon as a function has more than a page on its stack
    # (on Windows each page is touched in order anyway, by ___chkstk_ms), and -z relro and now, which are ELF's.
    target_compile_options(calora-hardening INTERFACE -fcf-protection)
    # With the protector comes libssp, which has what _FORTIFY_SOURCE calls.
    target_link_options(calora-hardening INTERFACE
        -fstack-protector-strong LINKER:--dynamicbase,--high-entropy-va,--nxcompat)
    return()
endif()

target_compile_options(calora-hardening INTERFACE -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
    target_compile_options(calora-hardening INTERFACE -fcf-protection)
endif()
target_link_options(calora-hardening INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)
# With it, CMake also links what is marked as position independent with -pie.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
