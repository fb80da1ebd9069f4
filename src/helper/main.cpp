// Started by the system at log-in: starts Quillon, unless it runs already, and ends.

#include "ApplicationIdentity.h"
#include "HostSystem.h"
#include "SingleInstance.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    // Started twice Quillon would show its settings, which nobody asked for.
    if (quillon::SingleInstance(quillon::identity::instanceLock()).isHeldByAnother())
        return 0;
    QString error;
    if (quillon::startQuillon(&error))
        return 0;
    std::fprintf(stderr, "QuillonHelper: %s\n", qPrintable(error));
    return 1;
}
