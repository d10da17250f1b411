# SPDX-License-Identifier: Apache-2.0
# Flags of our own code, on interface targets that are never exported.

add_library(quarn_flags INTERFACE)
target_compile_options(
  quarn_flags
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Woverloaded-virtual
            -Wdouble-promotion
            $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override>
            $<$<CXX_COMPILER_ID:Clang>:-Wsuggest-override>
            $<$<BOOL:${QUARN_WARNINGS_AS_ERRORS}>:-Werror>
            # Calls within a library go straight to their target, as they do with Clang.
            $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>
            # The same bits on every machine: no contraction into fused operations, and never any fast-math.
            -ffp-contract=off)

add_library(quarn_link_flags INTERFACE)

if(QUARN_SANITIZE)
  target_compile_options(quarn_flags INTERFACE -fsanitize=${QUARN_SANITIZE} -fno-sanitize-recover=all
                                               -fno-omit-frame-pointer)
  target_link_options(quarn_flags INTERFACE -fsanitize=${QUARN_SANITIZE})
  target_link_options(quarn_link_flags INTERFACE -fsanitize=${QUARN_SANITIZE})
endif()
