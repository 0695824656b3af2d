# What scripts/package makes with CPack: each kind of package is an install component of its own, with a layout of its own.
set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Calora")
set(CPACK_PACKAGE_CONTACT "Calora developers <calora@example.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://calora.example.org)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Commissioning tool for air-to-water heat pumps")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/cmake/PackagingKinds.cmake)

# The programs that every package brings. Each has its manual page packaging/linux/NAME.1.
set(programs calora-configurator calora-files)

# The folder as it is carried away, from the lists of RunnableFolder.cmake: what a run left in it isn't delivered.
function(install_runnable_folder component destination)
    set(delivered ${languages} ${language_files})
    list(REMOVE_DUPLICATES delivered)
    install(TARGETS calora-configurator RUNTIME DESTINATION ${destination} COMPONENT ${component})
    install(FILES ${font_files} DESTINATION ${destination} COMPONENT ${component})
    install(FILES ${delivered} DESTINATION ${destination}/language COMPONENT ${component})
endfunction()

# The guide for whoever has opened a package on site. scripts/guide makes it, scripts/package calls that.
function(install_guide component destination)
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/build/guide/ DESTINATION ${destination}/guide COMPONENT ${component})
endfunction()

include(cmake/Packaging${CMAKE_SYSTEM_NAME}.cmake)
include(CPack)
