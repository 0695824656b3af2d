# Runs when a package for Linux is laid out: the desktop entry in the folder ${entry_folder}, in every language, and, where
# ${metainfo_folder} is set, what software centres show. Both have to please the strictest reading of their formats.
set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

function(translate kind template target)
    get_filename_component(folder ${target} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    execute_process(COMMAND msgfmt ${kind} --template=${template} -d ${translations} -o ${target} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(entry ${root}/${entry_folder}/${app_id}.desktop)
translate(--desktop ${generated}/menu.desktop ${entry})
execute_process(COMMAND desktop-file-validate ${entry} COMMAND_ERROR_IS_FATAL ANY)
if(metainfo_folder)
    set(metainfo ${root}/${metainfo_folder}/${app_id}.metainfo.xml)
    translate(--xml ${generated}/menu.metainfo.xml ${metainfo})
    execute_process(COMMAND appstreamcli validate --no-net --strict --pedantic ${metainfo} COMMAND_ERROR_IS_FATAL ANY)
endif()
