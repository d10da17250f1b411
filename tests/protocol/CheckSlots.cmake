# SPDX-License-Identifier: Apache-2.0
# The order of virtual operations is part of the interface: a class that is compiled against the headers meets a library
# that was built before. This compares the order that the compiler gives today with the list in slot_order.txt.
#
# Run with -DCOMPILER=<g++> -DSOURCE_DIR=<root of the sources> -DWORK_DIR=<folder for the dump>. When a slot is added on
# purpose, it goes behind the others, and the file `slot_order.txt` in the work folder replaces the list.
cmake_minimum_required(VERSION 3.25)

set(CLASSES
    QnGeObject
    QnGeObject2d
    QnGeObject3d
    QnGeCurve2d
    QnGeMLine2d
    QnGePolyline2d
    QnGeRegion2d
    QnGePolygon2d
    "QnDynArrayBase<double>"
    "QnDynArray<double>"
    "QnDynPArray<QnGeObject>"
    "QnList<double>"
    "QnDList<double>"
    "QnPDList<QnGeObject>"
    "QnXList<double>"
    "QnPXList<QnGraphNode>"
    "QnDListStack<double>"
    "QnListQuene<double>"
    "QnFreeList<QnGePoint>"
    "QnFreeDList<QnGePoint>")

# The dump of all classes into `result`. Square brackets would join elements of lists, so they travel as braces.
function(read_dump result)
  file(REMOVE_RECURSE ${WORK_DIR})
  file(MAKE_DIRECTORY ${WORK_DIR})
  execute_process(
    COMMAND ${COMPILER} -std=c++17 -I${SOURCE_DIR}/src -fdump-lang-class -fsyntax-only
            ${SOURCE_DIR}/tests/protocol/slot_order.cpp
    WORKING_DIRECTORY ${WORK_DIR}
    RESULT_VARIABLE failed
    ERROR_VARIABLE errors)
  file(GLOB dump ${WORK_DIR}/*.class)
  if(failed OR NOT dump)
    message(FATAL_ERROR "${COMPILER} gives no class dump: ${errors}")
  endif()
  file(READ ${dump} text)
  string(REPLACE "[" "{" text "${text}")
  string(REPLACE "]" "}" text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# Appends a line `class slot function` for each slot of the class's first table. The two entries of a destructor are one
# slot; an abstract class has zeros there, and no name for operations without body.
function(append_slots dump class lines)
  string(FIND "${dump}" "\nVtable for ${class}\n" begin)
  if(begin EQUAL -1)
    message(FATAL_ERROR "the dump has no table of ${class}")
  endif()
  string(SUBSTRING "${dump}" ${begin} -1 table)
  string(FIND "${table}" "\n\n" end)
  string(SUBSTRING "${table}" 0 ${end} table)
  string(REGEX MATCHALL "\n[0-9]+ +[^\n]+" entries "${table}")
  list(SUBLIST entries 2 -1 entries) # behind the offset and the type
  set(slot 0)
  set(inDestructor FALSE)
  foreach(entry IN LISTS entries)
    string(REGEX REPLACE "^\n[0-9]+ +" "" entry "${entry}")
    if(entry MATCHES "\\)-[0-9]+$")
      break() # the table of the next base
    endif()
    if(entry STREQUAL "0" OR entry MATCHES "::~")
      if(inDestructor)
        set(inDestructor FALSE)
        continue()
      endif()
      set(inDestructor TRUE)
      set(name "destructor")
    elseif(entry MATCHES "__cxa_pure_virtual")
      set(name "pure")
    else()
      string(REGEX REPLACE "^.*::" "" name "${entry}")
    endif()
    math(EXPR slot "${slot} + 1")
    string(APPEND ${lines} "${class} ${slot} ${name}\n")
  endforeach()
  set(${lines} "${${lines}}" PARENT_SCOPE)
endfunction()

read_dump(dump)
set(today "")
foreach(class IN LISTS CLASSES)
  append_slots("${dump}" "${class}" today)
endforeach()
string(REPLACE "{" "[" today "${today}")
string(REPLACE "}" "]" today "${today}")
file(WRITE ${WORK_DIR}/slot_order.txt "${today}")

file(READ ${SOURCE_DIR}/tests/protocol/slot_order.txt golden)
if(NOT today STREQUAL golden)
  execute_process(COMMAND diff -u ${SOURCE_DIR}/tests/protocol/slot_order.txt ${WORK_DIR}/slot_order.txt)
  message(FATAL_ERROR "the order of virtual operations has changed; today's is in ${WORK_DIR}/slot_order.txt")
endif()
