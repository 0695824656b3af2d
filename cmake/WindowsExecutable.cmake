# What Windows shows of the executable: no console, its icon, its version.
enable_language(RC)
set(windows_resource ${CMAKE_BINARY_DIR}/packaging/calora-configurator.rc)
configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/calora-configurator.rc.in ${windows_resource} @ONLY)
set_source_files_properties(${windows_resource} PROPERTIES
    OBJECT_DEPENDS ${CMAKE_SOURCE_DIR}/resources/images/launcher_ic.ico)
target_sources(calora-configurator PRIVATE ${windows_resource})
set_target_properties(calora-configurator PROPERTIES WIN32_EXECUTABLE ON)
