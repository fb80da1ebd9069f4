#include "LoginItem.h"
#include "LoginItemFactory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The program as value of the key Exec: quoted as an argument and without field codes, then escaped as the string
/// that it stands in (Desktop Entry Specification 1.5, "The Exec key" and "Possible value types").
QString execValue(const QString& program)
{
    QString value = u"\""_s;
    for (const QChar c : program) {
        if (c == u'"' || c == u'`' || c == u'$')
            value += "\\\\"_L1 + c;
        else if (c == u'\\')
            value += "\\\\\\\\"_L1;
        else if (c == u'%')
            value += "%%"_L1;
        else if (c == u'\n')
            value += "\\n"_L1;
        else if (c == u'\r')
            value += "\\r"_L1;
        else if (c == u'\t')
            value += "\\t"_L1;
        else
            value += c;
    }
    return value + u'"';
}

/// An entry in the user's autostart folder (Desktop Application Autostart Specification 0.5).
class AutostartEntry final : public LoginItem {
public:
    explicit AutostartEntry(QString program)
        : program_(std::move(program))
    {
    }

    bool setEnabled(bool enabled) override { return enabled ? write() : remove(); }

private:
    static QString path()
    {
        const QString configuration = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
        return configuration + "/autostart/com.Orvane.Quillon.desktop"_L1;
    }

    QByteArray content() const
    {
        return "[Desktop Entry]\n"
               "Type=Application\n"
               "Name=Quillon\n"
               "Exec=" +
               execValue(program_).toUtf8() +
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

    static bool remove()
    {
        QFile entry(path());
        return !entry.exists() || entry.remove();
    }

    QString program_;
};

} // namespace

std::unique_ptr<LoginItem> makeLoginItem(const QString& program)
{
    return std::make_unique<AutostartEntry>(program);
}

} // namespace quillon
