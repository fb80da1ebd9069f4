// A program that runs once for each folder: the first instance stays, any other asks it to present itself.

#include "SingleInstance.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void say(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    quillon::SingleInstance instance(application.arguments().value(1) + QStringLiteral("/instance"), {"back-up-now"});
    const QByteArray request = application.arguments().value(2, u"present"_s).toUtf8();
    const auto start = instance.acquireOrAsk(request, application.arguments().value(3));
    if (start != quillon::SingleInstance::Start::First) {
        say(start == quillon::SingleInstance::Start::Asked ? u"presented"_s : u"refused: "_s + instance.errorString());
        return 0;
    }
    QObject::connect(&instance, &quillon::SingleInstance::presentRequested,
                     [] { say((u"present "_s + qEnvironmentVariable("XDG_ACTIVATION_TOKEN")).trimmed()); });
    QObject::connect(&instance, &quillon::SingleInstance::requested,
                     [](const QByteArray& wanted, const QString& subject) {
                         say((QString::fromUtf8(wanted) + u' ' + subject).trimmed());
                     });
    QObject::connect(&instance, &quillon::SingleInstance::asked,
                     [](const QByteArray& question, const std::shared_ptr<quillon::Caller>& caller) {
                         caller->tell("heard " + question);
                     });
    say(u"first"_s);
    return QCoreApplication::exec();
}
