# Checks of the tree and of all that is built from it, beside the tests of the native build. Those with
# the label `all` need more than that build; ./dev test has built it.
set(python /usr/bin/python3)  # Debian's, which has the packages
set(root ${PROJECT_SOURCE_DIR})
set(checks ${CMAKE_CURRENT_SOURCE_DIR}/checks.sh)

function(check name)  # NAME COMMAND...
  trelvin_test(${name} ${ARGN})
  set_tests_properties(
    ${preset}/${name} PROPERTIES WORKING_DIRECTORY ${root} ENVIRONMENT
                                 "TRELVIN_LIBRARY=$<TARGET_FILE:trelvin>;PYTHONDONTWRITEBYTECODE=1")
endfunction()

check(generator ${TRELVIN_PYTHON} tests/tools/generator_test.py)
check("generated files" tools/generate.py --check)
check(formatting ${checks} formatted)
check("linters of scripts" ${checks} scripts_lint)
check("share of tests" ${checks} share_of_tests)
check(setup ${TRELVIN_PYTHON} tests/tools/setup_test.py)
check("lost digits" ${TRELVIN_PYTHON} tests/docs/digits_test.py
      $<TARGET_FILE:trelvin>)
add_custom_target(checked ALL DEPENDS accuracy figures)
check(accuracy accuracy --check docs/accuracy.csv)
check("figures" tests/docs/figures_test.py $<TARGET_FILE:figures>)
check("benchmarks" benchmark --moment ${PROJECT_BINARY_DIR}/moment)

function(check_all name)  # NAME COMMAND... ; in the order of their time, since the longest start first
  check(${name} ${ARGN})
  math(EXPR cost "${cost} - 1")
  set(cost ${cost} PARENT_SCOPE)
  set_tests_properties(
    ${preset}/${name} PROPERTIES LABELS all COST ${cost} TIMEOUT 900
                                 FIXTURES_REQUIRED "windows/wine;windows64/wine")
endfunction()
set(cost 100)
foreach(shard 1 2 3 4 5 6)
  check_all("clang-tidy ${shard} of 6" ${TRELVIN_PYTHON} tests/tidy.py ${shard} 6)
endforeach()
check_all("fuzzer" ${checks} fuzzed)
check_all(manual ${checks} manual)
check_all("packages" ${checks} packages)
check_all("languages" tests/bindings/run.py)
check_all("designer" node --test tests/web/designer_test.mjs)
check_all("installed" ${checks} installs)
check_all("study" ${python} tests/study/study_test.py)
check_all("Python package" ${python} tests/bindings/python_test.py)
check_all("Microsoft's compiler" ${checks} microsoft_reads)
check_all("same output" ${checks} same_output)
check_all("headers" ${checks} headers_stand_alone)
check_all("exports" ${python} tools/check_exports.py)
check_all("faults of exports" ${python} tests/tools/exports_test.py)

# Packages hold the manual; both run the tools of the build tree, as the pages' commands do.
set_property(TEST "${preset}/packages"
             PROPERTY DEPENDS ${preset}/manual)
set_property(
  TEST ${preset}/manual "${preset}/packages"
       "${preset}/languages"
  PROPERTY RESOURCE_LOCK build)
