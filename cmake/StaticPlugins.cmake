# Qt's static plugins register themselves in calora-objects, once, instead of in each program by sources of its own.
foreach(plugin QWindowsIntegration QICO QWindowsVistaStyle)
    get_target_property(import Qt5::${plugin}Plugin INTERFACE_SOURCES)
    target_sources(calora-objects PRIVATE ${import})
    set_target_properties(Qt5::${plugin}Plugin PROPERTIES INTERFACE_SOURCES "")
endforeach()
