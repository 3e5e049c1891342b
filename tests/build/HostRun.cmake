# expect_card(HOST): runs a built minimal host, into which CardProbe.cpp is linked, and
# checks that it shows the receipt in its golden size.
#
# Needs EXAMPLES and GOLDEN, the folders of the cards and of their layouts.
function(run_host host)
    execute_process(COMMAND ${host} ${ARGN}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    set(result "${result}" PARENT_SCOPE)
    set(output "${output}" PARENT_SCOPE)
    set(errors "${errors}" PARENT_SCOPE)
endfunction()

function(expect_card host)
    set(card ${EXAMPLES}/cards/receipt.json)
    file(READ ${GOLDEN}/receipt.json layout)
    string(REGEX MATCH "\"width\": ([0-9]+), \"height\": ([0-9]+)" _ "${layout}")
    set(expected "A card of ${CMAKE_MATCH_1} x ${CMAKE_MATCH_2}\n")

    run_host(${host} ${card} ${EXAMPLES}/images)
    if(NOT result EQUAL 0 OR NOT output STREQUAL expected)
        message(FATAL_ERROR
            "expected \"${expected}\", but ${host} printed \"${output}\" and \"${errors}\" "
            "and ended with ${result}")
    endif()
    if(errors MATCHES "No picture")
        message(SEND_ERROR "the host has not found its pictures: ${errors}")
    endif()

    run_host(${host} ${card} ${EXAMPLES}/no-such-folder)
    if(NOT errors MATCHES "No picture for https:[^\n]*: ${EXAMPLES}/no-such-folder/logo.png\n")
        message(SEND_ERROR "the host does not say which picture is missing: \"${errors}\"")
    endif()

    run_host(${host} ${EXAMPLES}/no-such-card.json)
    if(NOT result EQUAL 1 OR NOT errors MATCHES "Cannot read the card [^\n]*no-such-card.json\n")
        message(SEND_ERROR "the host does not say that its card is missing: \"${errors}\"")
    endif()
endfunction()
