#include "LocalizedString.h"

#include <QApplication>

#include <clocale>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"})
        qunsetenv(variable); // the caller's display is none of the tests' business
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    std::setlocale(LC_NUMERIC, "C");
    quillon::installStringTable(QStringLiteral("en")); // of the tests that link one
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
