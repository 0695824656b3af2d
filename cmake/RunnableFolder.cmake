# The folder that is carried away: the executable, the four faces and the language folder, and nothing else. The guide
# is in packages alone.
set(runnable ${CMAKE_BINARY_DIR}/calora)
set(fonts NotoSans-Medium.ttf NotoSans-Bold.ttf NotoSans-Light.ttf NotoSans-Regular.ttf)
set(font_folder /usr/share/fonts/truetype/noto CACHE PATH "Where the Noto Sans faces lie")
# English and its name are all that a program needs to show any text.
set(language_files ${CMAKE_SOURCE_DIR}/resources/language/English.json
                   ${CMAKE_SOURCE_DIR}/resources/language/language.ini)
file(GLOB languages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/language/*.json)
list(TRANSFORM fonts PREPEND ${font_folder}/ OUTPUT_VARIABLE font_files)

set_target_properties(calora-configurator PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${runnable} LINK_DEPENDS "${languages}")
add_custom_command(TARGET calora-configurator POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${font_files} ${runnable}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${runnable}/language
    COMMAND ${CMAKE_COMMAND} -E copy ${languages} ${language_files} ${runnable}/language
    VERBATIM)
