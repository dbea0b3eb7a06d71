// Runs tests that need windows.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/toolkit.h"

int main(int argc, char** argv) {
    // Windows of tests come up on a real screen only when somebody asks for it.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    trameli::PrepareToolkit();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
