# What every test program runs with. It draws on Qt's offscreen platform, so that it runs the same on
# a desk and on a machine without a display.
set(TALVERO_TEST_ENVIRONMENT
  QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
  "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0")
if(WIN32)
  list(APPEND TALVERO_TEST_ENVIRONMENT QT_FONT_DPI=96) # offscreen, a screen of Windows would have 100 dpi
  if(NOT CMAKE_CROSSCOMPILING)
    list(APPEND TALVERO_TEST_ENVIRONMENT "QT_QPA_FONTDIR=C:/Windows/Fonts") # it finds none by itself
  endif()
endif()

# Tests are compiled as quickly as they allow: what they drive is optimised, they themselves hardly need it.
set(talvero_test_options $<$<AND:$<CONFIG:Release>,$<NOT:$<CXX_COMPILER_ID:MSVC>>>:-O1>)
# The other linker of binutils takes a third of the time.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold TALVERO_HAS_GOLD)
set(talvero_test_link_options $<$<BOOL:${TALVERO_HAS_GOLD}>:-fuse-ld=gold>)

talvero_precompiled(talvero_test_headers <QtTest> LINK Qt${TALVERO_QT}::Test)
talvero_precompiled(talvero_widget_test_headers
  <QtTest> <QAbstractItemView> <QApplication> <QButtonGroup> <QComboBox> <QLabel> <QLineEdit> <QMessageBox>
  <QPushButton> <QRadioButton> <QScrollArea> <QScrollBar> <QSlider> <QTabWidget>
  LINK Qt${TALVERO_QT}::Test Qt${TALVERO_QT}::Widgets)
foreach(headers talvero_test_headers talvero_widget_test_headers)
  target_compile_options(${headers} PRIVATE ${talvero_test_options})
endforeach()

# talvero_add_test(NAME [LINK libraries...] [LABEL label] [TIMEOUT seconds])
# One test program from NAME.cpp. One that needs a pseudo-terminal, by what it links, is left out where the
# system has none (talvero_skip_without_terminal).
function(talvero_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "LABEL;TIMEOUT" "LINK")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  if(NOT arg_LABEL)
    get_filename_component(arg_LABEL ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  endif()
  add_executable(${name} ${name}.cpp)
  set_target_properties(${name} PROPERTIES
    AUTOMOC OFF # for one class in one file it takes longer than the compiler
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${arg_LINK} Qt${TALVERO_QT}::Test talvero_warnings)
  set(moc ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
  qt_generate_moc(${name}.cpp ${moc} TARGET ${name})
  target_sources(${name} PRIVATE ${moc})
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  target_compile_options(${name} PRIVATE ${talvero_test_options})
  if(TALVERO_QT GREATER 5)
    # Sizes have 64 bits there. A test that counts a handful may keep the number in an int. (Options of the target
    # would stand before the warnings'.)
    set_source_files_properties(${name}.cpp PROPERTIES COMPILE_OPTIONS -Wno-conversion)
  endif()
  target_link_options(${name} PRIVATE ${talvero_test_link_options})
  talvero_use_precompiled(${name} talvero_test_headers talvero_widget_test_headers ${arg_LINK})
  talvero_skip_without_terminal(skipped ${name} ${arg_LINK})
  if(skipped)
    return()
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    LABELS ${arg_LABEL}
    TIMEOUT ${arg_TIMEOUT}
    ENVIRONMENT "${TALVERO_TEST_ENVIRONMENT}")
endfunction()

# talvero_add_dense_run(NAME PROGRAM [SCALE factor] [test functions...]): runs a test program once
# more as on a display with this many times the density; twice if no factor is given.
function(talvero_add_dense_run name program)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "SCALE" "")
  if(NOT arg_SCALE)
    set(arg_SCALE 2)
  endif()
  if(NOT TEST ${program})
    return()
  endif()
  add_test(NAME ${name} COMMAND ${program} ${arg_UNPARSED_ARGUMENTS})
  get_filename_component(label ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  set_tests_properties(${name} PROPERTIES
    LABELS ${label}
    TIMEOUT 300
    ENVIRONMENT "${TALVERO_TEST_ENVIRONMENT};QT_SCALE_FACTOR=${arg_SCALE}")
endfunction()

# talvero_begin_with_tests_here(): those of this folder wait long for timers and slow lines. They begin before
# all others, so that nothing waits for them alone in the end.
function(talvero_begin_with_tests_here)
  get_property(tests DIRECTORY PROPERTY TESTS)
  if(tests)
    set_tests_properties(${tests} PROPERTIES COST 100)
  endif()
endfunction()
