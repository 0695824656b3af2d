# The zip for Windows: the runnable folder, and the licences of what is linked into the executable.
set(windows ${CMAKE_SOURCE_DIR}/packaging/windows)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-windows-x86_64)
install_runnable_folder(windows .)
install(TARGETS calora-files RUNTIME DESTINATION . COMPONENT windows)
install_guide(windows .)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/copyright DESTINATION licences COMPONENT windows)

# Qt is built from the source package of Debian's own; its packages and the compiler's have the copyright notices.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libstdc++.a
    OUTPUT_VARIABLE cxx_library OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libwinpthread.a
    OUTPUT_VARIABLE threads_library OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(licensed
    "Qt Core, Gui and Widgets with their plugins, linked in=/usr/share/doc/libqt5core5a/copyright"
    "libstdc++.a, libgcc.a and libssp.a, linked in=${cxx_library}"
    "libwinpthread.a and the start-up code, linked in=${threads_library}"
    "valijson, compiled into calora-files=${VALIJSON_HEADERS}/valijson/validator.hpp"
    ${font_files})
install(CODE "
    set(licensed \"${licensed}\")
    execute_process(COMMAND ${CMAKE_SOURCE_DIR}/packaging/licences.py ${windows}/licences.txt
        \$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/licences \${licensed} COMMAND_ERROR_IS_FATAL ANY)
" COMPONENT windows)
