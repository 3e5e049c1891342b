# Checks that the man page has every command and option of the tool's help.
file(READ ${MAN_PAGE} page)
# As they are written in the source of a man page.
string(REPLACE "\\-" "-" page "${page}")
foreach(command IN ITEMS render layout gallery check schema view)
    if(NOT page MATCHES "\n\\.SS[^\n]*${command}")
        message(SEND_ERROR "the man page does not have the command ${command}")
    endif()
    execute_process(COMMAND ${TOOL} ${command} --help
        OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "--[a-z-]+" options "${help}")
    foreach(option IN LISTS options)
        string(FIND "${page}" "${option}" place)
        if(place EQUAL -1)
            message(SEND_ERROR "the man page does not have the option ${option} of ${command}")
        endif()
    endforeach()
endforeach()
