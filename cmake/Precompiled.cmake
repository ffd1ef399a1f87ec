# SPDX-License-Identifier: GPL-3.0-or-later
# Headers of libraries that most sources read, precompiled once for all targets: that halves the time of a build. A source
# still includes what it uses: tests/check_includes reads each without this.

# what the compiler cache needs to recognise such a source
target_compile_options(vestrola_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
                                                  "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")

# vestrola_precompiled(<name> HEADERS ... LIBRARIES ...): a target whose precompiled header others reuse
function(vestrola_precompiled name)
  cmake_parse_arguments(ARG "" "" "HEADERS;LIBRARIES" ${ARGN})
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp)
  target_link_libraries(${name} PRIVATE vestrola_options ${ARG_LIBRARIES})
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

set(VESTROLA_CORE_HEADERS <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string> <utility> <vector>
                          <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QObject> <QString> <QStringList> <QUrl>
                          <QVariant>)
vestrola_precompiled(precompiled_core HEADERS ${VESTROLA_CORE_HEADERS} LIBRARIES Qt6::Core)
set(VESTROLA_WIDGETS_HEADERS <QApplication> <QCheckBox> <QComboBox> <QDialog> <QEvent> <QGridLayout> <QHeaderView> <QJsonObject>
                             <QKeyEvent> <QLabel> <QLineEdit> <QPainter> <QPushButton> <QTimer> <QVBoxLayout> <QWidget>)
vestrola_precompiled(precompiled_widgets HEADERS ${VESTROLA_CORE_HEADERS} ${VESTROLA_WIDGETS_HEADERS} LIBRARIES Qt6::Widgets)
if(VESTROLA_TESTS)
  vestrola_precompiled(precompiled_gtest HEADERS ${VESTROLA_CORE_HEADERS} <QTemporaryDir> <gtest/gtest.h>
                       LIBRARIES Qt6::Core GTest::gtest)
  vestrola_precompiled(precompiled_qtest HEADERS ${VESTROLA_CORE_HEADERS} ${VESTROLA_WIDGETS_HEADERS} LIBRARIES Qt6::Widgets)
  foreach(test_headers precompiled_gtest precompiled_qtest)
    target_compile_options(${test_headers} PRIVATE ${VESTROLA_TEST_OPTIONS})
  endforeach()
endif()
