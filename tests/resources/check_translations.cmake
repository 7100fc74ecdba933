# Fails when a translation file is incomplete or out of step with the code:
# an unfinished, obsolete or empty entry in a .ts file, or a source text that
# a fresh lupdate (into copies under WORK_DIR) adds or drops.
#
#   cmake -DLUPDATE=... -DSOURCE_DIR=... -DWORK_DIR=... -DTS_FILES=a.ts|b.ts
#         -DTR_DIRS=base|ui|... -P check_translations.cmake
foreach(var LUPDATE SOURCE_DIR WORK_DIR TS_FILES TR_DIRS)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "check_translations: ${var} is not set")
    endif()
endforeach()
string(REPLACE "|" ";" TS_FILES "${TS_FILES}")
string(REPLACE "|" ";" TR_DIRS "${TR_DIRS}")

set(problems 0)

# Reports every entry of a .ts that is unfinished, obsolete, vanished or
# empty, naming its source text (the first line of it).
function(check_ts path what)
    file(STRINGS "${path}" lines ENCODING UTF-8)
    set(source "")
    set(count 0)
    foreach(line IN LISTS lines)
        if(line MATCHES "<source>([^<]*)")
            set(source "${CMAKE_MATCH_1}")
        endif()
        set(fault "")
        if(line MATCHES "type=\"(unfinished|obsolete|vanished)\"")
            set(fault "${CMAKE_MATCH_1}")
        elseif(line MATCHES "<translation></translation>|<translation/>|<numerusform></numerusform>|<numerusform/>")
            set(fault "empty")
        endif()
        if(fault)
            message("${what}: ${fault}: ${source}")
            math(EXPR count "${count} + 1")
        endif()
    endforeach()
    set(found ${count} PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(copies)
foreach(ts IN LISTS TS_FILES)
    get_filename_component(name "${ts}" NAME)
    check_ts("${ts}" "${name}")
    math(EXPR problems "${problems} + ${found}")
    file(COPY "${ts}" DESTINATION "${WORK_DIR}")
    list(APPEND copies "${WORK_DIR}/${name}")
endforeach()

# Without -no-obsolete: a text gone from the code shows up as vanished.
execute_process(
    COMMAND "${LUPDATE}" -silent -locations none -source-language en_US ${TR_DIRS} -ts ${copies}
    WORKING_DIRECTORY "${SOURCE_DIR}"
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "lupdate failed (${result}):\n${output}")
endif()
if(output MATCHES "[^\n]*(lacks Q_OBJECT|Cannot|Discarding)[^\n]*")
    message("lupdate: ${CMAKE_MATCH_0}")
    math(EXPR problems "${problems} + 1")
endif()
foreach(copy IN LISTS copies)
    get_filename_component(name "${copy}" NAME)
    check_ts("${copy}" "${name} after lupdate")
    math(EXPR problems "${problems} + ${found}")
endforeach()

if(problems GREATER 0)
    message(FATAL_ERROR "${problems} translation problem(s); run the translations-update target, "
                        "then translate every new entry")
endif()
message(STATUS "Every translation is complete and in step with the code")
