#include <QApplication>

#include <gtest/gtest.h>

/// Main function of every test binary that needs Qt. The platform plug-in comes from the
/// environment (CTest sets it to offscreen), so the same binary also runs under a real display.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
