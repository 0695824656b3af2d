# Runs when the portable archive is laid out: copies the libraries that the executables and the plugins need into lib/,
# except those that belong to the machine: the C and C++ runtime, the X client library and OpenGL's front end. None of
# the machine's may need one of ours, or it would get ours in place of its own.
set(of_the_machine "^(ld-linux-x86-64|lib(c|m|gcc_s|stdc\\+\\+|X11|X11-xcb|xcb|Xau|Xdmcp|GL|GLX|GLdispatch))\\.so\\.")

set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(executables ${root}/calora-configurator ${root}/calora-files)
file(GLOB_RECURSE plugins ${root}/plugins/*.so)
file(GET_RUNTIME_DEPENDENCIES
    EXECUTABLES ${executables}
    MODULES ${plugins}
    RESOLVED_DEPENDENCIES_VAR libraries
    PRE_EXCLUDE_REGEXES ${of_the_machine})

file(MAKE_DIRECTORY ${root}/lib)
foreach(library ${libraries})
    get_filename_component(name ${library} NAME)
    get_filename_component(real ${library} REALPATH)
    file(COPY_FILE ${real} ${root}/lib/${name})
endforeach()

# An old-style run path also serves what the libraries and plugins look for, so that they stay as Debian built them.
foreach(executable ${executables})
    execute_process(COMMAND patchelf --force-rpath --set-rpath $ORIGIN/lib ${executable} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
execute_process(COMMAND ${licences_script} ${root}/licences ${libraries} ${debian_files} COMMAND_ERROR_IS_FATAL ANY)
