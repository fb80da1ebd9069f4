#include "Program.h"
#include "QtRunLoop.h"
#include "Task.h"

#include <QCoreApplication>

#include <clocale>

int main(int argc, char** argv)
{
    using namespace quillon;
    constexpr int exitUsage = 2;
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QString error;
    const auto arguments = Arguments::parse(QCoreApplication::arguments().mid(1), &error);
    if (!arguments) {
        complain(error);
        return exitUsage;
    }
    QtRunLoop runLoop;
    Task launcher;
    return runQuillonctl(*arguments, {runLoop, launcher});
}
