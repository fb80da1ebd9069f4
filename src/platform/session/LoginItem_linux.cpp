#include "Services.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Text as value of a key of type string (Desktop Entry Specification 1.5, "Possible value types").
QString stringValue(const QString& text)
{
    QString value;
    for (const QChar c : text) {
        if (c == u'\\')
            value += "\\\\"_L1;
        else if (c == u'\n')
            value += "\\n"_L1;
        else if (c == u'\r')
            value += "\\r"_L1;
        else if (c == u'\t')
            value += "\\t"_L1;
        else
            value += c;
    }
    return value;
}

/// The program as an argument of the key Exec: quoted, and without field codes (the same, "The Exec key").
QString execArgument(const QString& program)
{
    QString argument = u"\""_s;
    for (const QChar c : program) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
            argument += u'\\';
        if (c == u'%')
            argument += u'%';
        argument += c;
    }
    return argument + u'"';
}

/// An entry in the user's autostart folder (Desktop Application Autostart Specification 0.5).
class AutostartEntry final : public LoginItem {
public:
    explicit AutostartEntry(LoginProgram program)
        : program_(std::move(program))
    {
    }

    bool setEnabled(bool enabled) override { return enabled ? write() : remove(); }

private:
    QString path() const
    {
        const QString configuration = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
        return configuration + "/autostart/"_L1 + program_.identifier + ".desktop"_L1;
    }

    QByteArray content() const
    {
        return "[Desktop Entry]\n"
               "Type=Application\n"
               "Name=" +
               stringValue(program_.name).toUtf8() +
               "\n"
               "Exec=" +
               stringValue(execArgument(program_.path)).toUtf8() +
               "\n"
               "TryExec=" +
               stringValue(program_.path).toUtf8() +
               "\n"
               "Terminal=false\n";
    }

    bool write() const
    {
        const QByteArray wanted = content();
        QFile present(path());
        if (present.open(QIODevice::ReadOnly) && present.readAll() == wanted)
            return true;
        if (!QDir().mkpath(QFileInfo(path()).path()))
            return false;
        QSaveFile file(path());
        return file.open(QIODevice::WriteOnly) && file.write(wanted) == wanted.size() && file.commit();
    }

    bool remove() const
    {
        QFile entry(path());
        return !entry.exists() || entry.remove();
    }

    const LoginProgram program_;
};

} // namespace

std::unique_ptr<LoginItem> makeLoginItem(const LoginProgram& program)
{
    return std::make_unique<AutostartEntry>(program);
}

} // namespace quillon
