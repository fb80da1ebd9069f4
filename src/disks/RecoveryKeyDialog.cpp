#include "RecoveryKeyDialog.h"

#include "DateFormatter.h"
#include "LocalizedString.h"
#include "Setup.h"

#include <QBuffer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPdfWriter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTextDocument>
#include <QVBoxLayout>

#include <sys/stat.h>
#include <utility>

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
    return localizedString(isPlace ? "disksPlacePageMade" : "disksPageMade")
        .arg(DateFormatter::string(made, DateFormatterStyle::Long, DateFormatterStyle::None));
}

QStringList RecoveryPage::steps() const
{
    // The window asks for what lets one into a server, which no command line may hold.
    const QStringList begin =
        isPlace ? QStringList{localizedString("disksPlacePageStart").arg(u"quillon-disks"_s),
                              localizedString("disksPlacePageAdd").arg(localizedString("disksAddPlaceTitle"), path)}
                : QStringList{localizedString("disksPageConnect"),
                              localizedString("disksPageAdopt").arg(u"tmutil adopt "_s + quoted(path))};
    return begin + QStringList{localizedString("disksPageList").arg(u"tmutil listbackups"_s),
                               localizedString("disksPageRestore")
                                   .arg(u"tmutil restore \"$(tmutil latestbackup)$HOME/Documents\" restored"_s),
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

namespace {

QLabel* makeParagraph(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

RecoveryKeyDialog::RecoveryKeyDialog(RecoveryPage page, const Setup& setup, QWidget* parent)
    : QDialog(parent)
    , page_(std::move(page))
    , setup_(setup)
{
    setObjectName(u"recoveryKey"_s);
    setWindowTitle(page_.heading());
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);

    QLabel* heading = makeParagraph(page_.heading());
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);

    auto* column = new QVBoxLayout(this);
    column->addWidget(heading);
    column->addWidget(
        makeParagraph(localizedString(page_.isPlace ? "disksPlaceKeyExplanation" : "disksKeyExplanation")));
    column->addWidget(makeKeyField());
    column->addWidget(makeParagraph(localizedString("disksKeyOnce")));
    column->addWidget(makeButtons());
}

/// A field rather than a label: it can be read letter by letter, selected and copied by the keyboard alone.
QWidget* RecoveryKeyDialog::makeKeyField()
{
    auto* field = new QLineEdit(page_.key);
    field->setObjectName(u"key"_s);
    field->setAccessibleName(page_.heading());
    field->setReadOnly(true);
    field->setAlignment(Qt::AlignCenter);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    constexpr qreal larger = 1.4;
    font.setPointSizeF(this->font().pointSizeF() * larger);
    field->setFont(font);
    const QFontMetrics metrics(font);
    field->setMinimumWidth(metrics.horizontalAdvance(page_.key) + 3 * metrics.averageCharWidth());
    return field;
}

/// In an order of our own: the button that settles it stands apart from the one that Return presses.
QWidget* RecoveryKeyDialog::makeButtons()
{
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins({});
    const auto add = [row](const QString& name, const QString& title) {
        auto* button = new QPushButton(title);
        button->setObjectName(name);
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    QPushButton* savePage = add(u"savePage"_s, localizedString("disksSavePageTitle") + u'…');
    savePage->setDefault(true);
    row->addStretch();
    connect(savePage, &QPushButton::clicked, this, &RecoveryKeyDialog::choosePlace);
    connect(add(u"later"_s, localizedString("disksLaterTitle")), &QPushButton::clicked, this, &QDialog::reject);
    connect(add(u"kept"_s, localizedString("disksKeptTitle")), &QPushButton::clicked, this, [this] {
        Q_EMIT kept();
        accept();
    });
    return box;
}

void RecoveryKeyDialog::choosePlace()
{
    const QString asPdf = localizedString("disksPagePdf") + " (*.pdf)"_L1;
    const QString asText = localizedString("disksPageText") + " (*.txt)"_L1;
    auto* dialog = new QFileDialog(this, localizedString("disksSavePageTitle"),
                                   QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({asPdf, asText});
    dialog->setDefaultSuffix(u"pdf"_s);
    dialog->selectFile(page_.heading().replace(u'/', u'-'));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog, asPdf](const QString& filter) {
        dialog->setDefaultSuffix(filter == asPdf ? u"pdf"_s : u"txt"_s);
    });
    connect(dialog, &QFileDialog::fileSelected, this, [this, dialog, asText](const QString& file) {
        const bool isText = file.endsWith(".txt"_L1, Qt::CaseInsensitive) ||
                            (dialog->selectedNameFilter() == asText && !file.endsWith(".pdf"_L1, Qt::CaseInsensitive));
        save(file, !isText);
    });
    dialog->open();
}

void RecoveryKeyDialog::save(const QString& file, bool asPdf)
{
    if (!page_.wouldLieOnDisk(file))
        return write(file, asPdf);
    setup_.confirm(localizedString("disksPageOnDiskMessage"), localizedString("disksPageOnDiskInformative"),
                   localizedString("disksSaveTitle"), [this, file, asPdf] { write(file, asPdf); });
}

void RecoveryKeyDialog::write(const QString& file, bool asPdf)
{
    if (const QString reason = page_.save(file, asPdf); !reason.isEmpty())
        setup_.complain(localizedString("disksPageFailed"), reason);
}

} // namespace quillon
