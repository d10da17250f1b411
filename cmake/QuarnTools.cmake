# SPDX-License-Identifier: Apache-2.0
# Targets for the people who work on the library: format, format-check, tidy.

add_custom_target(
  format
  COMMAND ${PROJECT_SOURCE_DIR}/tools/format.sh --write
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  VERBATIM)
add_custom_target(
  format-check
  COMMAND ${PROJECT_SOURCE_DIR}/tools/format.sh --check
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  VERBATIM)
add_custom_target(
  tidy
  COMMAND ${PROJECT_SOURCE_DIR}/tools/tidy.sh ${PROJECT_BINARY_DIR}
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  VERBATIM)
