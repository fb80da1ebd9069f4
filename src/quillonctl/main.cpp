#include "ControlRequest.h"
#include "Program.h"
#include "QtRunLoop.h"
#include "Task.h"

#include <QCoreApplication>

#include <clocale>

int main(int argc, char** argv)
{
    using namespace quillon;
    constexpr int exitUsage = 2;
    constexpr int exitUsageOfRequest = 64; // EX_USAGE of sysexits(3): there 2 says that no Quillon runs
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QString error;
    const QStringList words = QCoreApplication::arguments().mid(1);
    const auto arguments = Arguments::parse(words, &error);
    if (!arguments) {
        complain(error);
        return ControlRequest::isMeant(words) ? exitUsageOfRequest : exitUsage;
    }
    QtRunLoop runLoop;
    Task launcher;
    return runQuillonctl(*arguments, {runLoop, launcher});
}
