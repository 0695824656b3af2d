# Builds for Windows on Debian; scripts/windows brings the compiler, and Qt into the folder that the preset names.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The plain names lead to either of two compilers, which differ in their threads.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CALORA_WINDOWS_QT)
set(CMAKE_FIND_ROOT_PATH ${CALORA_WINDOWS_QT} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()

# The compiler's own libraries go into the executable too. Without the time of linking, the same sources make the same one.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
# For the tests: Windows programs run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/windows.d/with-wine;wine64)
