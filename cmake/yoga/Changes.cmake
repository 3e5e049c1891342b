# What we change in the sources of Yoga.
#
# Yoga measures a box several times to lay it out once, and so do the boxes
# inside it. What keeps that from doubling at each level is what a node
# remembers: the last 8 measurements. Rows and columns in turn ask for more, and
# then each level measures the one below again and again: 32 levels with a text
# each took 40 seconds. Cards are strangers' work, so:
#
# - a node remembers 64 measurements, 24 bytes each. More would hardly be used
#   before the limit that follows;
# - a layout has a limit of visits, as no number of measurements is enough for
#   every card: cmake/yoga/VisitLimit.h.
#
# The unchanged files are kept beside the changed ones. So this may run again at
# any time, also over sources that were unpacked before there were any changes.

# plix_change(FILE OLD NEW [OLD NEW]...): FILE becomes what it was in the
# package, with each OLD text, which must be there exactly once, replaced by its
# NEW one.
function(plix_change file)
    if(NOT EXISTS ${file}.original)
        file(COPY_FILE ${file} ${file}.part)
        file(RENAME ${file}.part ${file}.original)
    endif()
    file(READ ${file}.original text)
    set(last 1)
    while(last LESS ARGC)
        set(old "${ARGV${last}}")
        math(EXPR next "${last} + 1")
        set(new "${ARGV${next}}")
        string(FIND "${text}" "${old}" first_place)
        string(FIND "${text}" "${old}" last_place REVERSE)
        if(first_place EQUAL -1 OR NOT first_place EQUAL last_place)
            message(FATAL_ERROR
                "${file}.original does not have this text exactly once:\n${old}\n"
                "cmake/yoga/Changes.cmake was made for another version of Yoga, or the "
                "sources were not unpacked whole. Delete ${yoga_dir} to unpack them again.")
        endif()
        string(REPLACE "${old}" "${new}" text "${text}")
        math(EXPR last "${last} + 2")
    endwhile()
    plix_write_changed(${file} "${text}")
endfunction()

# Leaves a file that is as it should be alone: nothing is built again.
function(plix_write_changed file text)
    set(present "")
    if(EXISTS ${file})
        file(READ ${file} present)
    endif()
    if(NOT present STREQUAL text)
        file(WRITE ${file}.part "${text}")
        file(RENAME ${file}.part ${file})
    endif()
endfunction()

# plix_change_yoga(SOURCES): SOURCES is the folder that holds Yoga.h.
function(plix_change_yoga sources)
    plix_change(${sources}/node/LayoutResults.h
        "MaxCachedMeasurements = 8;"
        "MaxCachedMeasurements = 64;")
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
    set(header ${PROJECT_SOURCE_DIR}/cmake/yoga/VisitLimit.h)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
    file(READ ${header} text)
    plix_write_changed(${sources}/algorithm/VisitLimit.h "${text}")
endfunction()
