#include "LocalizedString.h"

#include <QApplication>

#include <clocale>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    std::setlocale(LC_NUMERIC, "C");
    quillon::installStringTable(QStringLiteral("en")); // of the tests that link one
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
