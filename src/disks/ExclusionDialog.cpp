#include "ExclusionDialog.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Setup.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Nobody who types waits for what the letter before would have left out.
constexpr auto typingPause = 400ms;

// Every file of the sources is looked at, which may be a disk full of them.
constexpr auto longestCount = 10min;

QLabel* makeWrappedLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

ExclusionDialog::ExclusionDialog(Kind kind, const Setup& setup, QWidget* parent)
    : QDialog(parent)
    , setup_(setup)
    , preview_(makeWrappedLabel({}))
{
    setObjectName(u"exclusion"_s);
    setWindowTitle(localizedString(kind == Kind::Name ? "disksAddNameTitle" : "disksAddSizeTitle"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    preview_->setObjectName(u"preview"_s);
    // Room for two lines, so that the window stays as it is while the text changes.
    preview_->setMinimumHeight(2 * preview_->fontMetrics().height());
    preview_->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* buttons = new QDialogButtonBox(this); // a dialog remembers a default button that is made in it
    buttons->addButton(localizedString("disksCancelTitle"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    leaveOut_ = buttons->addButton(localizedString("disksLeaveOutTitle"), QDialogButtonBox::AcceptRole);
    leaveOut_->setObjectName(u"leaveOut"_s);
    leaveOut_->setDefault(true);

    auto* column = new QVBoxLayout(this);
    QLabel* prompt =
        makeWrappedLabel(localizedString(kind == Kind::Name ? "disksNamePrompt" : "disksSizePrompt") + u':');
    column->addWidget(prompt);
    QWidget* field = makeField(kind);
    prompt->setBuddy(field);
    field->setAccessibleName(prompt->text());
    column->addWidget(field);
    if (kind == Kind::Name)
        column->addWidget(makeWrappedLabel(localizedString("disksNameHint")));
    column->addWidget(preview_, 1);
    column->addWidget(buttons);
    constexpr int width = 48; // characters
    setMinimumWidth(width * fontMetrics().averageCharWidth());

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        Q_EMIT chosen(value());
        accept();
    });
    edited();
}

ExclusionDialog::~ExclusionDialog() = default;

QWidget* ExclusionDialog::makeField(Kind kind)
{
    if (kind == Kind::Name) {
        name_ = new QLineEdit;
        name_->setPlaceholderText(u"*.iso"_s);
        connect(name_, &QLineEdit::textChanged, this, &ExclusionDialog::edited);
        return name_;
    }
    constexpr int most = 1'000'000'000; // as tmutil has it
    constexpr int usual = 1000;
    size_ = new QSpinBox;
    size_->setRange(1, most);
    size_->setValue(usual);
    size_->setSuffix(u" MB"_s);
    size_->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    connect(size_, &QSpinBox::valueChanged, this, &ExclusionDialog::edited);
    return size_;
}

QString ExclusionDialog::value() const
{
    return name_ ? name_->text() : QString::number(size_->value());
}

QStringList ExclusionDialog::trial() const
{
    return {name_ ? u"excludename"_s : u"excludelarger"_s, u"--try"_s, u"-X"_s, u"--"_s, value()};
}

void ExclusionDialog::edited()
{
    leaveOut_->setEnabled(false);
    tmutil_.reset();
    delay_.invalidate();
    if (value().trimmed().isEmpty())
        return tell({});
    tell(localizedString("disksCounting"));
    RunLoop& runLoop = setup_.services().runLoop;
    delay_ = runLoop.scheduleOnce(runLoop.now() + typingPause, [this] { preview(); });
}

void ExclusionDialog::preview()
{
    const auto& services = setup_.services();
    tmutil_ = std::make_unique<TmutilClient>(services.launcher, services.runLoop, services.tmutil, longestCount);
    tmutil_->call(trial(), [this](const TmutilAnswer& answer) { show(answer); });
}

void ExclusionDialog::show(const TmutilAnswer& answer)
{
    const auto omission = answer.success ? readOmission(answer.output) : std::nullopt;
    if (!omission)
        return tell(answer.success ? localizedString("disksToolUnreadable") : answer.complaint);
    tell(omission->files == 0
             ? localizedString("disksPreviewNothing")
             : localizedString("disksPreview").arg(QLocale().toString(omission->files), sizeText(omission->bytes)));
    leaveOut_->setEnabled(true);
}

void ExclusionDialog::tell(const QString& line)
{
    preview_->setText(line);
    leaveOut_->setAccessibleDescription(line); // is read out with the button that depends on it
}

} // namespace quillon
