// Entry of every GoogleTest program: the parts under test may use Qt's event loop and application paths.
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
