# SPDX-License-Identifier: Apache-2.0
# No file outgrows one sitting.
cmake_minimum_required(VERSION 3.25)

function(check most pattern)
  file(GLOB_RECURSE files ${SOURCE_DIR}/${pattern})
  foreach(file IN LISTS files)
    if(file MATCHES "/impl/" AND NOT pattern MATCHES "impl")
      continue()  # bodies of templates are sources in all but name
    endif()
    file(STRINGS ${file} lines)
    list(LENGTH lines count)
    if(count GREATER most)
      message(SEND_ERROR "${file} has ${count} lines that are not empty; ${most} are the most")
    endif()
  endforeach()
endfunction()

check(300 "src/*.h")
check(700 "src/*.cpp")
check(700 "src/*/impl/*.h")
check(500 "tests/*.cpp")
