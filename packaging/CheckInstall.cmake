# Installs the build into a staging folder as a package would (prefix /usr) and checks the tree.
# Arguments: BUILD_DIR, STAGE_DIR, APP_ID, ICON_SIZES (separated by commas).
string(REPLACE "," ";" ICON_SIZES "${ICON_SIZES}")
file(REMOVE_RECURSE ${STAGE_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} -E env DESTDIR=${STAGE_DIR}
                        ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix /usr
                RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed:\n${output}")
endif()

set(root ${STAGE_DIR}/usr)
set(failures)
set(files bin/robot-companion share/applications/${APP_ID}.desktop share/metainfo/${APP_ID}.metainfo.xml
          share/doc/robot-companion/copyright share/doc/robot-companion/changelog.gz
          share/man/man1/robot-companion.1.gz)
foreach(file IN LISTS files)
    if(NOT EXISTS ${root}/${file})
        list(APPEND failures "missing ${file}")
    endif()
endforeach()
execute_process(COMMAND test -x ${root}/bin/robot-companion RESULT_VARIABLE not_executable)
if(NOT not_executable EQUAL 0)
    list(APPEND failures "bin/robot-companion is not executable")
endif()

# A PNG's width and height are the two big-endian words at bytes 16 to 23.
foreach(size IN LISTS ICON_SIZES)
    set(icon ${root}/share/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
    if(NOT EXISTS ${icon})
        list(APPEND failures "missing icon ${size}x${size}")
        continue()
    endif()
    file(READ ${icon} header LIMIT 24 HEX)
    string(SUBSTRING "${header}" 0 16 signature)
    string(SUBSTRING "${header}" 32 8 w)
    string(SUBSTRING "${header}" 40 8 h)
    math(EXPR w "0x${w}")
    math(EXPR h "0x${h}")
    if(NOT signature STREQUAL "89504e470d0a1a0a" OR NOT w EQUAL size OR NOT h EQUAL size)
        list(APPEND failures "icon ${size}x${size} is a ${w}x${h} image (signature ${signature})")
    endif()
endforeach()

# Nothing else goes into the package.
file(GLOB_RECURSE installed RELATIVE ${root} ${root}/*)
list(LENGTH installed count)
list(LENGTH ICON_SIZES icon_count)
list(LENGTH files file_count)
math(EXPR expected "${icon_count} + ${file_count}")
if(NOT count EQUAL expected)
    list(APPEND failures "${count} files installed, ${expected} expected: ${installed}")
endif()

find_program(DESKTOP_FILE_VALIDATE desktop-file-validate)
if(DESKTOP_FILE_VALIDATE)
    execute_process(COMMAND ${DESKTOP_FILE_VALIDATE} ${root}/share/applications/${APP_ID}.desktop
                    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0 OR output MATCHES "error|warning")
        list(APPEND failures "desktop-file-validate: ${output}")
    endif()
else()
    message(STATUS "desktop-file-validate not found (desktop-file-utils): desktop entry not validated")
endif()
find_program(APPSTREAMCLI appstreamcli)
if(APPSTREAMCLI)
    execute_process(COMMAND ${APPSTREAMCLI} validate --pedantic --no-net
                            ${root}/share/metainfo/${APP_ID}.metainfo.xml
                    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    # Pedantic hints leave the exit status alone; they count here all the same.
    if(NOT result EQUAL 0 OR output MATCHES "(^|\n)[EWIP]: ")
        list(APPEND failures "appstreamcli validate: ${output}")
    endif()
else()
    message(STATUS "appstreamcli not found (appstream): metainfo not validated")
endif()

if(failures)
    list(JOIN failures "\n  " text)
    message(FATAL_ERROR "Installation check failed:\n  ${text}")
endif()
message(STATUS "Installed tree in ${root} is complete")
