# The portable archive and the Debian package.
set(linux ${CMAKE_SOURCE_DIR}/packaging/linux)
set(generated ${CMAKE_BINARY_DIR}/packaging)
set(app_id io.github.calora.configurator)

# The portable archive: the runnable folder, Qt's plugins, the libraries of both, and the licences of all that.
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
install_runnable_folder(portable .)
install_guide(portable .)
install(FILES ${linux}/qt.conf DESTINATION . COMPONENT portable)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/copyright DESTINATION licences COMPONENT portable)
foreach(plugin platforms/QXcbIntegration imageformats/QICO platforminputcontexts/QComposePlatformInputContext
               platforminputcontexts/QIbusPlatformInputContext)
    get_filename_component(kind ${plugin} DIRECTORY)
    get_filename_component(name ${plugin} NAME)
    install(FILES $<TARGET_FILE:Qt5::${name}Plugin> DESTINATION plugins/${kind} COMPONENT portable)
    list(APPEND debian_files $<TARGET_FILE:Qt5::${name}Plugin>)
endforeach()
install(CODE "
    set(licences_script \"${CMAKE_SOURCE_DIR}/packaging/licences.py;${linux}/licences.txt\")
    set(debian_files \"${font_files};${debian_files}\")
" COMPONENT portable)
install(SCRIPT cmake/BundleLibraries.cmake COMPONENT portable)

# The Debian package: the runnable folder as a model in lib/, and a launcher that gives each user a copy of it.
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "An installer walks four steps (product selection, environment, operation
settings, validation) and saves one JSON settings file for the heat pump's
wall remote controller. Works without a network.")
install_runnable_folder(debian lib/${PROJECT_NAME})
install_guide(debian share/doc/${PROJECT_NAME})
install(PROGRAMS ${linux}/calora-configurator DESTINATION bin COMPONENT debian)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/copyright DESTINATION share/doc/${PROJECT_NAME} COMPONENT debian)
string(TIMESTAMP release_date "%Y-%m-%d" UTC)
string(TIMESTAMP release_time "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${linux}/changelog.in ${generated}/changelog @ONLY)
configure_file(${linux}/menu.desktop.in ${generated}/${app_id}.desktop @ONLY)
configure_file(${linux}/metainfo.xml.in ${generated}/${app_id}.metainfo.xml @ONLY)
install(FILES ${generated}/${app_id}.desktop DESTINATION share/applications COMPONENT debian)
install(FILES ${generated}/${app_id}.metainfo.xml DESTINATION share/metainfo COMPONENT debian)
install(FILES ${CMAKE_SOURCE_DIR}/resources/artwork/launcher.svg RENAME ${app_id}.svg
    DESTINATION share/icons/hicolor/scalable/apps COMPONENT debian)
install(CODE "
    set(root \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
    foreach(size 16 32 48 64 128 256)
        set(folder \${root}/share/icons/hicolor/\${size}x\${size}/apps)
        file(MAKE_DIRECTORY \${folder})
        execute_process(COMMAND rsvg-convert --width \${size} --height \${size} --output \${folder}/${app_id}.png
            ${CMAKE_SOURCE_DIR}/resources/artwork/launcher.svg COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
    set(doc \${root}/share/doc/${PROJECT_NAME})
    execute_process(COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/CHANGELOG.md
        OUTPUT_FILE \${doc}/CHANGELOG.md.gz COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND gzip -9nc ${generated}/changelog
        OUTPUT_FILE \${doc}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
    # Lets the launcher see which of a user's languages are as they were delivered. The one that is chosen isn't among them.
    execute_process(COMMAND sh -c \"LC_ALL=C sha256sum *.json >../delivered\"
        WORKING_DIRECTORY \${root}/lib/${PROJECT_NAME}/language COMMAND_ERROR_IS_FATAL ANY)
    # Names the build, so that a launcher can tell whether a user's copy is older.
    file(SHA256 \${root}/lib/${PROJECT_NAME}/calora-configurator checksum)
    file(WRITE \${root}/lib/${PROJECT_NAME}/version \"${PROJECT_VERSION} \${checksum}\\n\")
" COMPONENT debian)
