# Installs the build into a temporary prefix and checks what lands there:
# exactly the files the desktop and the package need, the desktop entry's
# icon and the MIME types' icons among them, and MIME data the desktop's own
# tool turns into a working database.
#   cmake -DBUILD_DIR=... -DWORK_DIR=... -DAPP_ID=... -P check_install.cmake
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/usr)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "cmake --install failed:\n${output}")
endif()

set(mime_types application/x-keystage-layout application/x-keystage-favorites)
set(expected
    bin/keystage
    bin/keystagectl
    lib/udev/rules.d/70-keystage.rules
    share/applications/${APP_ID}.desktop
    share/metainfo/${APP_ID}.metainfo.xml
    share/mime/packages/keystage.xml
    share/man/man1/keystage.1
    share/man/man1/keystagectl.1
    share/gnome-shell/extensions/keystage-focus@vantorix.io/extension.js
    share/gnome-shell/extensions/keystage-focus@vantorix.io/metadata.json
    share/icons/hicolor/scalable/apps/${APP_ID}.svg)
foreach(lang de fr it ja zh_TW)
    list(APPEND expected share/man/${lang}/man1/keystage.1 share/man/${lang}/man1/keystagectl.1)
endforeach()
foreach(type IN LISTS mime_types)
    string(REPLACE "/" "-" icon ${type})
    list(APPEND expected share/icons/hicolor/scalable/mimetypes/${icon}.svg)
endforeach()
foreach(size 16 22 24 32 48 64 128 256)
    list(APPEND expected share/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
    foreach(type IN LISTS mime_types)
        string(REPLACE "/" "-" icon ${type})
        list(APPEND expected share/icons/hicolor/${size}x${size}/mimetypes/${icon}.png)
    endforeach()
endforeach()

file(GLOB_RECURSE installed RELATIVE ${prefix} ${prefix}/*)
list(SORT installed)
list(SORT expected)
if(NOT installed STREQUAL expected)
    set(missing ${expected})
    list(REMOVE_ITEM missing ${installed})
    set(extra ${installed})
    list(REMOVE_ITEM extra ${expected})
    message(FATAL_ERROR "install layout differs\n missing: ${missing}\n unexpected: ${extra}")
endif()

# The desktop entry names the program and the icon that were installed.
file(STRINGS ${prefix}/share/applications/${APP_ID}.desktop icon_line REGEX "^Icon=")
file(STRINGS ${prefix}/share/applications/${APP_ID}.desktop exec_line REGEX "^Exec=")
if(NOT icon_line STREQUAL "Icon=${APP_ID}")
    message(FATAL_ERROR "the desktop entry's icon is '${icon_line}', not the installed ${APP_ID}")
endif()
if(NOT exec_line MATCHES "^Exec=keystage ")
    message(FATAL_ERROR "the desktop entry runs '${exec_line}', not the installed keystage")
endif()

# The MIME data compiles, and the exported files' names map to their types.
find_program(UPDATE_MIME_DATABASE update-mime-database)
if(UPDATE_MIME_DATABASE)
    # With the prefix among the data folders, or it adds a note that it is not.
    execute_process(COMMAND ${CMAKE_COMMAND} -E env XDG_DATA_DIRS=${prefix}/share
            ${UPDATE_MIME_DATABASE} ${prefix}/share/mime
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0 OR NOT output STREQUAL "")
        message(FATAL_ERROR "update-mime-database: ${output}")
    endif()
    file(STRINGS ${prefix}/share/mime/globs2 globs)
    foreach(glob "application/x-keystage-layout:\\*\\.kslayout" "application/x-keystage-favorites:\\*\\.ksfavorites")
        if(NOT globs MATCHES "[0-9]+:${glob}")
            message(FATAL_ERROR "no glob ${glob} in the compiled MIME database: ${globs}")
        endif()
    endforeach()
else()
    message(STATUS "update-mime-database not installed (shared-mime-info): MIME database not compiled")
endif()
message(STATUS "install layout as expected")
