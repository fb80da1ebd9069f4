#include "Program.h"
#include "RunLoop.h"
#include "Task.h"

#include <QCoreApplication>

#include <clocale>

int main(int argc, char** argv)
{
    using namespace quillon;
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QtRunLoop runLoop;
    Task launcher;
    return runQuillonctl(QCoreApplication::arguments().mid(1), {runLoop, launcher});
}
