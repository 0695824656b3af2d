# Compiler flags that every own target shares.
add_library(calora-flags INTERFACE)
target_compile_options(calora-flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wcast-align -Wformat=2 -Werror)
target_compile_definitions(calora-flags INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050f00)

option(CALORA_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
if(CALORA_SANITIZE)
    # Qt's own headers are compiled without RTTI-checkable vtables in the library, hence no vptr check.
    set(sanitize -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(calora-flags INTERFACE ${sanitize})
    target_link_options(calora-flags INTERFACE ${sanitize})
endif()

option(CALORA_COVERAGE "Build with coverage counters" OFF)
if(CALORA_COVERAGE)
    target_compile_options(calora-flags INTERFACE --coverage)
    target_link_options(calora-flags INTERFACE --coverage)
endif()

option(CALORA_FUZZ "Build the fuzzers in place of the tests; needs clang" OFF)
if(CALORA_FUZZ)
    target_compile_options(calora-flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
