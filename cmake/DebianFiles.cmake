# Runs when the Debian package is laid out: icons, compressed documents, and what the launcher compares.
set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

foreach(size 16 22 24 32 36 48 64 72 96 128 192 256 512)
    set(folder ${root}/share/icons/hicolor/${size}x${size}/apps)
    file(MAKE_DIRECTORY ${folder})
    execute_process(COMMAND rsvg-convert --width ${size} --height ${size} --output ${folder}/${app_id}.png ${icon}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

function(compress source target)
    get_filename_component(folder ${target} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    execute_process(COMMAND gzip -9nc ${source} OUTPUT_FILE ${target} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
compress(${changes} ${root}/share/doc/${package}/CHANGELOG.md.gz)
compress(${generated}/changelog ${root}/share/doc/${package}/changelog.gz)
foreach(page ${manual_pages})
    get_filename_component(name ${page} NAME)
    compress(${page} ${root}/share/man/man1/${name}.gz)
endforeach()

set(model ${root}/lib/${package})
# Lets the launcher see which of a user's languages are as they were delivered. The one that is chosen isn't among them.
execute_process(COMMAND sh -c "LC_ALL=C sha256sum *.json >../delivered"
    WORKING_DIRECTORY ${model}/language COMMAND_ERROR_IS_FATAL ANY)
# Names the build, so that a launcher can tell whether a user's copy is older.
file(SHA256 ${model}/${package} checksum)
file(WRITE ${model}/version "${version} ${checksum}\n")
