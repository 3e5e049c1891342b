# Our changes to the sources of Yoga.
#
# To lay a box out once, Yoga measures it several times, and each box inside it, too. A
# node remembers its last 8 measurements, so that the number does not double at each
# level. Where rows and columns alternate, a node is measured under more than 8 different
# constraints, and then each level measures the one below again and again: 32 levels with
# a text each took 40 seconds. Cards are untrusted, so:
#
# - a node remembers 64 measurements (cmake/yoga/Measurements.h). More would hardly be
#   used, because the limit that follows is reached first;
# - a layout has a limit of visits (cmake/yoga/VisitLimit.h), because no number of
#   measurements is enough for every card.
#
# The changes are made in a copy of the sources.

# plix_change(FILE OLD NEW [OLD NEW]...): replaces each OLD text in the file by its NEW
# one. Each OLD text must be in the file exactly once.
function(plix_change file)
    file(READ ${file} text)
    set(last 1)
    while(last LESS ARGC)
        set(old "${ARGV${last}}")
        math(EXPR next "${last} + 1")
        set(new "${ARGV${next}}")
        string(FIND "${text}" "${old}" first_place)
        string(FIND "${text}" "${old}" last_place REVERSE)
        if(first_place EQUAL -1 OR NOT first_place EQUAL last_place)
            message(FATAL_ERROR
                "${file} does not have this text exactly once:\n${old}\n"
                "cmake/yoga/Changes.cmake was made for another version of Yoga.")
        endif()
        string(REPLACE "${old}" "${new}" text "${text}")
        math(EXPR last "${last} + 2")
    endwhile()
    file(WRITE ${file} "${text}")
endfunction()

# plix_change_yoga(SOURCES): SOURCES is the folder that contains Yoga.h.
function(plix_change_yoga sources)
    plix_change(${sources}/node/LayoutResults.h
        [[#include <yoga/node/CachedMeasurement.h>
]]
        [[#include <yoga/node/CachedMeasurement.h>
#include <yoga/node/Measurements.h>
]]
        "MaxCachedMeasurements = 8;"
        "MaxCachedMeasurements = plix::Measurements::MaxCount;"
        "std::array<CachedMeasurement, MaxCachedMeasurements> cachedMeasurements = {};"
        "plix::Measurements cachedMeasurements;")
    plix_change(${sources}/event/event.h
        [[      measureCallbackReasonsCount;
]]
        [[      measureCallbackReasonsCount;
  int visitLimit = 0;
]])
    plix_change(${sources}/algorithm/CalculateLayout.cpp
        [[#include <yoga/algorithm/TrailingPosition.h>
]]
        [[#include <yoga/algorithm/TrailingPosition.h>
#include <yoga/algorithm/VisitLimit.h>
]]
        [[  LayoutData markerData = {};
]]
        [[  LayoutData markerData = {};
  markerData.visitLimit = plix::visitLimit(*node);
]]
        [[  if (!needToVisitNode && cachedResults != nullptr) {
]]
        [[  if (!needToVisitNode && !performLayout && cachedResults == nullptr &&
      plix::measureFromNearest(
          *node,
          {widthSizingMode, availableWidth},
          {heightSizingMode, availableHeight},
          ownerWidth,
          layoutMarkerData)) {
    // The node has its measured size.
  } else if (!needToVisitNode && cachedResults != nullptr) {
]])
    foreach(header IN ITEMS algorithm/VisitLimit.h node/Measurements.h)
        cmake_path(GET header FILENAME name)
        configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/${name} ${sources}/${header} COPYONLY)
    endforeach()
endfunction()

# plix_copy_changed_yoga(SOURCES COPY): makes the folder COPY the changed sources. Does not
# write a file that already has its text, so that nothing is compiled again.
function(plix_copy_changed_yoga sources copy)
    set(scratch ${copy}.part)
    file(REMOVE_RECURSE ${scratch})
    plix_list_yoga(${sources} files)
    foreach(file IN LISTS files)
        configure_file(${sources}/${file} ${scratch}/${file} COPYONLY)
    endforeach()
    plix_change_yoga(${scratch}/yoga)
    plix_list_yoga(${scratch} files)
    foreach(file IN LISTS files)
        cmake_path(GET file PARENT_PATH folder)
        file(MAKE_DIRECTORY ${copy}/${folder})
        file(COPY_FILE ${scratch}/${file} ${copy}/${file} ONLY_IF_DIFFERENT)
    endforeach()
    file(REMOVE_RECURSE ${scratch})
endfunction()
