#include "LocalizedString.h"

#include <QCoreApplication>

#include <clocale>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    quillon::installStringTable(QStringLiteral("en")); // of the tests that link one
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
