# Most of the time of a build went into reading Qt's headers, anew for each source: a test program of a
# window took 5.6 s to compile, and takes 2.4 s with the headers read beforehand. Every source still
# includes what it uses; scripts/lint builds without this and sees to it.
# CMAKE_DISABLE_PRECOMPILE_HEADERS=ON leaves it out.

# talvero_precompiled(NAME headers... LINK libraries...): a collection of headers, read once.
function(talvero_precompiled name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
  set(source ${PROJECT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "") # written once, so that it stays older than what is made of it
  add_library(${name} OBJECT ${source})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${name} PRIVATE ${arg_LINK} talvero_warnings)
  target_precompile_headers(${name} PRIVATE ${arg_UNPARSED_ARGUMENTS})
endfunction()

# talvero_reaches(VARIABLE GOAL libraries...): whether one of them is, or is made with, the library GOAL.
function(talvero_reaches variable goal)
  set(${variable} FALSE PARENT_SCOPE)
  foreach(library ${ARGN})
    if(library STREQUAL goal)
      set(${variable} TRUE PARENT_SCOPE)
      return()
    elseif(library MATCHES "^talvero_" AND TARGET ${library})
      get_target_property(known ${library} INTERFACE_LINK_LIBRARIES)
      talvero_reaches(reaches ${goal} ${known})
      if(reaches)
        set(${variable} TRUE PARENT_SCOPE)
        return()
      endif()
    endif()
  endforeach()
endfunction()

# talvero_knows_widgets(VARIABLE libraries...): whether one of them is, or is made with, Qt Widgets.
function(talvero_knows_widgets variable)
  talvero_reaches(knows Qt${TALVERO_QT}::Widgets ${ARGN})
  set(${variable} ${knows} PARENT_SCOPE)
endfunction()

# talvero_use_precompiled(TARGET PLAIN DRAWING libraries...): the collection DRAWING where one of the
# libraries knows widgets, else PLAIN; a source without widgets cannot reach them this way.
function(talvero_use_precompiled target plain drawing)
  talvero_knows_widgets(draws ${ARGN})
  if(draws)
    target_precompile_headers(${target} REUSE_FROM ${drawing})
  else()
    target_precompile_headers(${target} REUSE_FROM ${plain})
  endif()
endfunction()

talvero_precompiled(talvero_core_headers
  <QByteArray> <QDir> <QFile> <QHash> <QList> <QMap> <QObject> <QString> <QStringList> <QTextStream>
  <QTimer> <QVector>
  LINK Qt${TALVERO_QT}::Core)
talvero_precompiled(talvero_widget_headers
  <QApplication> <QComboBox> <QLabel> <QLineEdit> <QMessageBox> <QPainter> <QPushButton>
  <QRadioButton> <QScrollArea> <QSlider> <QTabWidget>
  LINK Qt${TALVERO_QT}::Widgets)
