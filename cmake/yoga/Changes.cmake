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
# The original files are kept beside the changed ones. So this may run again at any time,
# also after a version of it that made no changes or other ones.

# plix_change(FILE OLD NEW [OLD NEW]...): writes the original FILE with each OLD text
# replaced by its NEW one. Each OLD text must be in the file exactly once.
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

# Does not write a file that already has this text, so that nothing is built again.
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
    plix_add_to_yoga(VisitLimit.h ${sources}/algorithm)
    plix_add_to_yoga(Measurements.h ${sources}/node)
endfunction()

# plix_add_to_yoga(HEADER FOLDER): copies a header of ours.
function(plix_add_to_yoga header folder)
    set(path ${PROJECT_SOURCE_DIR}/cmake/yoga/${header})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    file(READ ${path} text)
    plix_write_changed(${folder}/${header} "${text}")
endfunction()
