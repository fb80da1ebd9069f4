#include "RecoveryPage.h"

#include "DateFormatter.h"
#include "LocalizedString.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextDocument>

#include <sys/stat.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// As it is typed into a shell.
QString quoted(QString path)
{
    static const QRegularExpression plain(u"^[\\w/.,:+@-]+$"_s, QRegularExpression::UseUnicodePropertiesOption);
    if (plain.match(path).hasMatch())
        return path;
    return u'\'' + path.replace(u'\'', u"'\\''"_s) + u'\'';
}

QString stepsHeading()
{
    return localizedString("disksPageSteps") + u':';
}

} // namespace

QString RecoveryPage::heading() const
{
    return localizedString("disksKeyHeading").arg(disk);
}

QString RecoveryPage::note() const
{
    return localizedString("disksPageMade")
        .arg(DateFormatter::string(made, DateFormatterStyle::Long, DateFormatterStyle::None));
}

QStringList RecoveryPage::steps() const
{
    return {
        localizedString("disksPageConnect"), localizedString("disksPageAdopt").arg(u"tmutil adopt "_s + quoted(path)),
        localizedString("disksPageList").arg(u"tmutil listbackups"_s),
        localizedString("disksPageRestore").arg(u"tmutil restore \"$(tmutil latestbackup)$HOME/Documents\" restored"_s),
        localizedString("disksPageContinue").arg(u"tmutil startbackup -b"_s)};
}

QString RecoveryPage::text() const
{
    QStringList lines{heading(), {}, u"    "_s + key, {}, note(), {}, stepsHeading(), {}};
    int number = 0;
    for (const QString& step : steps())
        lines.append(u"%1. %2"_s.arg(QString::number(++number), step));
    return lines.join(u'\n') + u'\n';
}

QByteArray RecoveryPage::pdf() const
{
    QString html = u"<h1>%1</h1><pre style='font-size: 20pt'>%2</pre><p>%3</p><h3>%4</h3><ol>"_s.arg(
        heading().toHtmlEscaped(), key.toHtmlEscaped(), note().toHtmlEscaped(), stepsHeading().toHtmlEscaped());
    for (const QString& step : steps())
        html += "<li>"_L1 + step.toHtmlEscaped() + "</li>"_L1;
    QTextDocument document;
    document.setHtml(html + "</ol>"_L1);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(heading());
    document.print(&writer);
    return buffer.data();
}

QString RecoveryPage::save(const QString& file, bool asPdf) const
{
    const QByteArray contents = asPdf ? pdf() : text().toUtf8();
    QSaveFile page(file);
    if (!page.open(QIODevice::WriteOnly))
        return page.errorString();
    // A stick without users refuses, and is a good place all the same.
    page.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (page.write(contents) != contents.size() || !page.commit())
        return page.errorString();
    return {};
}

bool RecoveryPage::wouldLieOnDisk(const QString& file) const
{
    struct stat folder {};
    struct stat own {};
    return stat(QFile::encodeName(QFileInfo(file).path()).constData(), &folder) == 0 &&
           stat(QFile::encodeName(path).constData(), &own) == 0 && folder.st_dev == own.st_dev;
}

} // namespace quillon
