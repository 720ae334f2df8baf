# fs_add_tool_test(NAME name TOOL program [ARGS arg...])
# A test that runs an outside checker (a validator, a cross compiler) found on
# the PATH. Without the checker the test says so and counts as skipped;
# scripts/setup.sh installs every checker, so CI runs them all.
function(fs_add_tool_test)
  cmake_parse_arguments(ARG "" "NAME;TOOL" "ARGS" ${ARGN})
  string(MAKE_C_IDENTIFIER "FS_TOOL_${ARG_TOOL}" tool_var)
  find_program(${tool_var} ${ARG_TOOL})
  if(${tool_var})
    add_test(NAME ${ARG_NAME} COMMAND ${${tool_var}} ${ARG_ARGS})
  else()
    add_test(NAME ${ARG_NAME}
             COMMAND ${CMAKE_COMMAND} -E echo "skipped: ${ARG_TOOL} is not installed (scripts/setup.sh installs it)")
    set_tests_properties(${ARG_NAME} PROPERTIES SKIP_REGULAR_EXPRESSION "skipped: ")
  endif()
endfunction()
