// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The classes of Qt Test in the test program of a folder: each source adds its own, main() runs the
// one that its first argument names.
#include <QApplication>
#include <QTest>

#include "platform/text/Language.h"

// A busy machine needs longer than the five seconds that Qt Test waits.
#undef QTRY_VERIFY
#define QTRY_VERIFY(expression) QTRY_VERIFY_WITH_TIMEOUT((expression), 60000)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), 60000)

namespace testing_support {

/// Runs a class in an application of its own; arguments and result are those of QTest::qExec.
using RunClass = int (*)(int argc, char** argv);

/// Adds a class to those of the program, under the name of its source without folder and ".cpp".
class TestClass {
  public:
    TestClass(const char* source, RunClass run);
};

template <class Test>
int runClass(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_Use96Dpi);
    text::setLanguage(QStringLiteral("it"));
    Test test;
    return QTest::qExec(&test, argc, argv);
}

/// With an application that is prepared first.
template <class Test, void (*prepare)(QApplication&)>
int runPreparedClass(int argc, char** argv) {
    QApplication application(argc, argv);
    prepare(application);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}  // namespace testing_support

/// The test class of a source.
#define TEST_CLASS(Test)                           \
    const testing_support::TestClass addedClass {  \
        __FILE__, &testing_support::runClass<Test> \
    }
/// The same with a step before each test class runs: void prepare(QApplication&).
#define TEST_CLASS_WITH(Test, prepare)                              \
    const testing_support::TestClass addedClass {                   \
        __FILE__, &testing_support::runPreparedClass<Test, prepare> \
    }
