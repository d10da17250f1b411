# SPDX-License-Identifier: Apache-2.0
# The shared library defines the virtual table of each container of graph elements, for all callers to share.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY} OUTPUT_VARIABLE symbols
                RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "${NM} cannot read ${LIBRARY}")
endif()
foreach(element IN ITEMS QnGraphNode QnGraphArc)
  foreach(container IN ITEMS "QnPDList<${element}>" "QnPXList<${element}>" "QnDList<${element}*>" "QnXList<${element}*>")
    string(FIND "${symbols}" "vtable for ${container}\n" position)
    if(position EQUAL -1)
      message(SEND_ERROR "${LIBRARY} does not export ${container}")
    endif()
  endforeach()
endforeach()
