# Writes tests/golden/NAME.json, the layout that the tool prints, for each example card.
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{FONTCONFIG_FILE} ${FONTS_CONF})

# Removes the golden files of cards that no longer exist, too.
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
