# Writes tests/golden/NAME.json, what the tool lays out, for every example card.
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{FONTCONFIG_FILE} ${FONTS_CONF})

# Goldens of cards that are gone go, too.
file(REMOVE_RECURSE ${GOLDEN})
file(MAKE_DIRECTORY ${GOLDEN})

file(GLOB cards ${CARDS}/*.json)
foreach(card IN LISTS cards)
    cmake_path(GET card FILENAME name)
    execute_process(
        COMMAND ${TOOL} layout ${card} --images ${IMAGES} --markup
            --text "chat_room_check_on_mobile=See your phone" -o ${GOLDEN}/${name}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
list(LENGTH cards count)
message(STATUS "${count} golden layouts written to ${GOLDEN}")
