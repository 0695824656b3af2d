# CPack reads this for each generator: which component becomes that kind of package.
set(component_TGZ portable)
set(component_DEB debian)
set(component_ZIP windows)
string(REPLACE ";ALL;" ";${component_${CPACK_GENERATOR}};" CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_INSTALL_CMAKE_PROJECTS}")
