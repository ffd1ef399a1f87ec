# SPDX-License-Identifier: GPL-3.0-or-later
# Programs of tests. The tests of a folder are one program: its sources are read several at a time, since most of the work is
# to look through headers and to link. ctest still runs each source by itself, in a process of its own.

# The code of a test is compiled quickly rather than well; the checked copies of libc need more than that.
set(VESTROLA_TEST_OPTIONS -O0 -U_FORTIFY_SOURCE)
if(VESTROLA_SANITIZE)
  # AddressSanitizer finds a null pointer as well, and no fuzz target is guided by a test: a quarter of the compile time.
  list(APPEND VESTROLA_TEST_OPTIONS -fno-sanitize=null,alignment -fno-sanitize-coverage=inline-8bit-counters,pc-table)
endif()

# bytes of source that the compiler gets at once: enough for both cores to have something to do
set(VESTROLA_TESTS_TOGETHER 150000)

# What lasts longer hangs, however busy the machine is.
set(VESTROLA_TEST_SECONDS 900)

# The sanitizers find faults of the browser's own, which are none of ours.
set(VESTROLA_SANITIZER_ENVIRONMENT
    "ASAN_OPTIONS=new_delete_type_mismatch=0;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/browser.supp")
# Blocks that GLib keeps are recognised by their whole call stack, through code without frame pointers.
set(VESTROLA_KEYRING_ENVIRONMENT
    "ASAN_OPTIONS=new_delete_type_mismatch=0:fast_unwind_on_malloc=0;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/browser.supp")
set(VESTROLA_WINDOW_ENVIRONMENT
    "QTEST_FUNCTION_TIMEOUT=${VESTROLA_TEST_SECONDS}000;QT_QPA_PLATFORM=offscreen;QTWEBENGINE_DISABLE_SANDBOX=1;${VESTROLA_SANITIZER_ENVIRONMENT}")

# what takes more than a quarter of a minute: begins first, so that nothing waits for it at the end
set(VESTROLA_LONG_TESTS test_message_frmeditor_integro test_message_frmeditor_stallo test_html_view_corpus
                        test_mail_smtp_stages test_mail_smtp_idle test_mail_smtp_hostile test_mail_smtp_dialogue
                        test_message_frmeditor_recupero test_jet_random test_ado_samples_write test_jet_room test_jet_index
                        test_jet_damage test_import_imptxt_guasti
                        test_contacts_outlook_file test_import_impdb_guasti)
# Those of them that compute all the time. Of ten tests at a time, two of these run: with more, the longest would last longer than a
# test may.
set(VESTROLA_BUSY_TESTS test_message_frmeditor_integro test_html_view_corpus test_jet_random test_ado_samples_write test_jet_room
                        test_jet_index test_jet_samples test_jet_index_kind test_jet_journal test_ado_orders
                        test_import_imptxt_guasti test_import_impdb_guasti)

# vestrola_read_together(<target> SOURCES...): writes files that include these sources of the current folder, and adds them
function(vestrola_read_together target)
  set(text "")
  set(bytes 0)
  set(number 1)
  foreach(source IN LISTS ARGN)
    set(path ${CMAKE_CURRENT_SOURCE_DIR}/${source})
    file(SIZE ${path} size)
    math(EXPR bytes "${bytes} + ${size}")
    if(bytes GREATER VESTROLA_TESTS_TOGETHER AND text)
      vestrola_write_together(${target} ${number} "${text}")
      math(EXPR number "${number} + 1")
      set(text "")
      set(bytes ${size})
    endif()
    # by its path below tests/, so that the compiler cache knows it in another checkout
    file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR}/tests ${path})
    string(APPEND text "#include \"${path}\"\n")
  endforeach()
  vestrola_write_together(${target} ${number} "${text}")
endfunction()

function(vestrola_write_together target number text)
  set(path ${CMAKE_CURRENT_BINARY_DIR}/${target}_${number}.cpp)
  file(CONFIGURE OUTPUT ${path} CONTENT "${text}" @ONLY)
  target_sources(${target} PRIVATE ${path})
endfunction()

# vestrola_moc(<target> SOURCES...): the .moc file of each source that includes one
function(vestrola_moc target)
  foreach(source IN LISTS ARGN)
    file(STRINGS ${source} includes_moc REGEX "^#include \".*\\.moc\"$")
    if(includes_moc)
      get_filename_component(base ${source} NAME_WE)
      qt6_generate_moc(${source} ${CMAKE_CURRENT_BINARY_DIR}/${base}.moc TARGET ${target})
      target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${base}.moc)
    endif()
  endforeach()
endfunction()

# vestrola_test_support(<target>... [WIDGETS]): what tests share is compiled as the program is, its sources read together.
function(vestrola_test_support)
  cmake_parse_arguments(ARG "WIDGETS" "" "" ${ARGN})
  set(headers precompiled_core)
  if(ARG_WIDGETS)
    set(headers precompiled_widgets)
  endif()
  foreach(target IN LISTS ARG_UNPARSED_ARGUMENTS)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON)
    target_precompile_headers(${target} REUSE_FROM ${headers})
  endforeach()
endfunction()

# vestrola_tests(<program> [WINDOWS] SOURCES ... [LIBRARIES ...]): the tests of the current folder. Plain: GoogleTest with a
# QCoreApplication. WINDOWS: classes of Qt Test with real widgets, offscreen; one in each source, handed to TEST_CLASS. Each
# source is in a namespace of its name. ctest knows it as test_<folder>_<source>, without a "_test" at the end.
function(vestrola_tests program)
  cmake_parse_arguments(ARG "WINDOWS" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${program})
  vestrola_read_together(${program} ${ARG_SOURCES})
  target_link_libraries(${program} PRIVATE vestrola_options ${ARG_LIBRARIES})
  if(ARG_WINDOWS)
    vestrola_moc(${program} ${ARG_SOURCES})
    target_link_libraries(${program} PRIVATE vestrola_test_classes)
    target_precompile_headers(${program} REUSE_FROM precompiled_qtest)
  else()
    target_link_libraries(${program} PRIVATE vestrola_test_main)
    target_precompile_headers(${program} REUSE_FROM precompiled_gtest)
  endif()
  target_compile_options(${program} PRIVATE ${VESTROLA_TEST_OPTIONS})
  target_include_directories(${program} PRIVATE ${CMAKE_CURRENT_BINARY_DIR} ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${program} PRIVATE TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data"
                                                SHARED_DIR="${CMAKE_SOURCE_DIR}/../shared"
                                                TEST_BIN_DIR="${CMAKE_BINARY_DIR}")
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  foreach(source IN LISTS ARG_SOURCES)
    get_filename_component(stem ${source} NAME_WE)
    string(REGEX REPLACE "_test$" "" topic ${stem})
    set(name test_${folder}_${topic})
    add_test(NAME ${name} COMMAND ${program} ${stem})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${VESTROLA_TEST_SECONDS})
    if(name IN_LIST VESTROLA_LONG_TESTS)
      set_tests_properties(${name} PROPERTIES COST 100)
    endif()
    if(name IN_LIST VESTROLA_BUSY_TESTS)
      set_tests_properties(${name} PROPERTIES PROCESSORS 4)
    endif()
    if(ARG_WINDOWS)
      set_tests_properties(${name} PROPERTIES ENVIRONMENT "${VESTROLA_WINDOW_ENVIRONMENT}")
    endif()
  endforeach()
endfunction()
