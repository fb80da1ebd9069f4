#include "RestoreDialog.h"

#include "BackupSetup.h"
#include "ListPage.h"
#include "LocalizedString.h"
#include "Text.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QLabel* makeSentence(const QString& text, bool bold = false)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
    return label;
}

QPushButton* makeButton(const char* key, const char* objectName)
{
    auto* button = new QPushButton(localizedString(key));
    button->setObjectName(QLatin1StringView(objectName));
    button->setAutoDefault(false);
    return button;
}

QHBoxLayout* makeRow(std::initializer_list<QPushButton*> buttons)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : buttons)
        row->addWidget(button);
    return row;
}

QString headingOf(const RestoreWish& wish)
{
    if (wish.sources.size() == 1)
        return localizedString("browseRestoreHeading").arg(shownName(wish.sources.first()));
    return localizedString("browseRestoreManyHeading").arg(QLocale().toString(wish.sources.size()));
}

} // namespace

RestoreDialog::RestoreDialog(const Setup::Services& services, const RestoreWish& wish, QWidget* parent)
    : QDialog(parent)
    , services_(services)
    , sources_(wish.sources)
    , pages_(new QStackedWidget)
{
    setObjectName(u"restore"_s);
    setWindowTitle(localizedString("browseRestoreTitle"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    column->addWidget(pages_);
    pages_->addWidget(makeChoice(wish));
    pages_->addWidget(makeProgress());
    pages_->addWidget(makeQuestion());
    pages_->addWidget(makeEnd());
    constexpr int width = 56; // characters
    setMinimumWidth(width * fontMetrics().averageCharWidth());
    setPage(Choice);
}

RestoreDialog::~RestoreDialog() = default;

QWidget* RestoreDialog::makeChoice(const RestoreWish& wish)
{
    auto* page = new QWidget;
    toPlace_ = new QRadioButton(localizedString("browseToItsPlace"));
    toPlace_->setObjectName(u"toPlace"_s);
    toPlace_->setChecked(true);
    toFolder_ = new QRadioButton(localizedString("browseToFolder"));
    toFolder_->setObjectName(u"toFolder"_s);
    folder_ = new QLineEdit;
    folder_->setObjectName(u"folder"_s);
    folder_->setAccessibleName(toFolder_->text());
    auto* choose = new QPushButton(panelTitle("browseChooseFolderTitle"));
    choose->setAutoDefault(false);
    restore_ = makeButton("browseRestoreTitle", "start");
    auto* cancel = makeButton("disksCancelTitle", "cancel");

    auto* place = new QHBoxLayout;
    place->addWidget(folder_, 1);
    place->addWidget(choose);
    auto* column = new QVBoxLayout(page);
    column->addWidget(makeSentence(headingOf(wish), true));
    if (!wish.backupTitle.isEmpty())
        column->addWidget(makeSentence(localizedString("browseFromBackup").arg(wish.backupTitle)));
    column->addWidget(toPlace_);
    column->addWidget(toFolder_);
    column->addLayout(place);
    column->addWidget(makeSentence(localizedString("browseNothingOverwritten")));
    column->addStretch();
    column->addLayout(makeRow({cancel, restore_}));
    connect(toFolder_, &QRadioButton::toggled, this, &RestoreDialog::updatePlace);
    connect(folder_, &QLineEdit::textEdited, toFolder_, [this] { toFolder_->setChecked(true); });
    connect(folder_, &QLineEdit::textChanged, this, &RestoreDialog::updatePlace);
    connect(choose, &QPushButton::clicked, this, &RestoreDialog::choosePlace);
    connect(cancel, &QPushButton::clicked, this, &RestoreDialog::reject);
    connect(restore_, &QPushButton::clicked, this, &RestoreDialog::begin);
    return page;
}

QWidget* RestoreDialog::makeProgress()
{
    auto* page = new QWidget;
    progressLabel_ = makeSentence({});
    progressBar_ = new QProgressBar;
    progressBar_->setTextVisible(false);
    progressBar_->setAccessibleName(localizedString("browseRestoring"));
    stop_ = makeButton("browseStopTitle", "stop");
    auto* column = new QVBoxLayout(page);
    column->addWidget(makeSentence(localizedString("browseRestoring"), true));
    column->addWidget(progressBar_);
    column->addWidget(progressLabel_);
    column->addStretch();
    column->addLayout(makeRow({stop_}));
    connect(stop_, &QPushButton::clicked, this, &RestoreDialog::reject);
    return page;
}

QWidget* RestoreDialog::makeQuestion()
{
    auto* page = new QWidget;
    questionLabel_ = makeSentence({}, true);
    questionPlace_ = makeSentence({});
    forAll_ = new QCheckBox(localizedString("browseForAll"));
    forAll_->setObjectName(u"forAll"_s);
    auto* skip = makeButton("browseSkipTitle", "skip");
    auto* replace = makeButton("browseReplaceTitle", "replace");
    keepBoth_ = makeButton("browseKeepBothTitle", "keepBoth");
    auto* column = new QVBoxLayout(page);
    column->addWidget(questionLabel_);
    column->addWidget(questionPlace_);
    column->addWidget(forAll_);
    column->addStretch();
    column->addLayout(makeRow({skip, replace, keepBoth_}));
    connect(skip, &QPushButton::clicked, this, [this] { answer(ConflictRule::Skip); });
    connect(replace, &QPushButton::clicked, this, [this] { answer(ConflictRule::Replace); });
    connect(keepBoth_, &QPushButton::clicked, this, [this] { answer(ConflictRule::KeepBoth); });
    return page;
}

QWidget* RestoreDialog::makeEnd()
{
    auto* page = new QWidget;
    summary_ = makeSentence({}, true);
    losses_ = new QListWidget;
    losses_->setObjectName(u"losses"_s);
    losses_->setAccessibleName(localizedString("browseLossesName"));
    losses_->setWordWrap(true);
    losses_->setSelectionMode(QAbstractItemView::NoSelection);
    close_ = makeButton("AlertButtonClose", "close");
    auto* column = new QVBoxLayout(page);
    column->addWidget(summary_);
    column->addWidget(losses_, 1);
    column->addStretch();
    column->addLayout(makeRow({close_}));
    connect(close_, &QPushButton::clicked, this, &QDialog::accept);
    return page;
}

void RestoreDialog::setPage(Page page)
{
    pages_->setCurrentIndex(page);
    QPushButton* const button = std::array{restore_, stop_, keepBoth_, close_}.at(page);
    button->setDefault(true);
    button->setFocus();
    updatePlace();
}

void RestoreDialog::choosePlace()
{
    auto* dialog = new QFileDialog(this, localizedString("browseChooseFolderTitle"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
        folder_->setText(path);
        toFolder_->setChecked(true);
    });
    dialog->open();
}

void RestoreDialog::updatePlace()
{
    restore_->setEnabled(toPlace_->isChecked() || folder_->text().startsWith(u'/'));
}

void RestoreDialog::begin()
{
    plan_.emplace(sources_, toPlace_->isChecked() ? QString() : folder_->text());
    goOn();
}

void RestoreDialog::goOn()
{
    if (const auto arguments = plan_->nextCall()) {
        setPage(Progress);
        progressBar_->setRange(0, 0);
        progressLabel_->clear();
        call_ = std::make_unique<ToolCall>(services_, *arguments,
                                           ToolCall::Handlers{.line =
                                                                  [this](const QByteArray& line) {
                                                                      take(line);
                                                                      return true;
                                                                  },
                                                              .ended =
                                                                  [this](const QString& complaint) {
                                                                      call_.reset();
                                                                      plan_->endCall(complaint);
                                                                      goOn();
                                                                  }});
    } else if (const auto conflict = plan_->question()) {
        questionLabel_->setText(conflictText(*conflict));
        questionPlace_->setText(shownLongText(conflict->path));
        forAll_->setVisible(plan_->isMoreInTheWay());
        setPage(Question);
    } else {
        showEnd();
    }
}

/// A line that says nothing known does not stop a restore: what is not told of counts as lost in the end.
void RestoreDialog::take(const QByteArray& line)
{
    const auto event = readRestoreEvent(line);
    if (!event)
        return;
    plan_->take(*event);
    if (plan_->isStopped())
        return;
    const RestoreEvent& progress = plan_->progress();
    constexpr int steps = 1000;
    progressBar_->setRange(0, progress.totalBytes > 0 ? steps : 0);
    if (progress.totalBytes > 0)
        progressBar_->setValue(
            static_cast<int>(static_cast<double>(progress.bytes) / static_cast<double>(progress.totalBytes) * steps));
    progressLabel_->setText(progressText(progress));
}

void RestoreDialog::answer(ConflictRule rule)
{
    plan_->answer(rule, forAll_->isChecked());
    goOn();
}

void RestoreDialog::showEnd()
{
    summary_->setText(summaryOf(*plan_));
    for (const RestorePlan::Loss& loss : plan_->losses())
        losses_->addItem(shownLongText(loss.path) + u'\n' + loss.reason);
    losses_->setVisible(!plan_->losses().empty());
    setPage(End);
}

void RestoreDialog::reject()
{
    if (!plan_ || plan_->isDone())
        return QDialog::reject();
    plan_->stop();
    if (!call_)
        return showEnd();
    call_->stop();
    stop_->setEnabled(false);
    progressBar_->setRange(0, 0);
    progressLabel_->setText(localizedString("browseStopping"));
}

} // namespace quillon
