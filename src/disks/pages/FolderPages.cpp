#include "FolderPages.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Setup.h"
#include "Text.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
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

SourcesPage::SourcesPage(Setup& setup, QWidget* parent)
    : ListPage(localizedString("disksSourcesTitle"), localizedString("disksSourcesExplanation"), parent)
    , setup_(setup)
{
    connect(addButton(panelTitle("disksAddFolderTitle")), &QPushButton::clicked, this, [this] {
        choose(localizedString("disksAddFolderTitle"), false, [this](const QString& path) { add(path); });
    });
    connect(this, &ListPage::removeRequested, this, &SourcesPage::remove);
}

void SourcesPage::reload()
{
    setup_.read({u"listsources"_s, u"-X"_s}, [this](const QByteArray& answer) {
        const auto paths = readPaths(answer);
        if (!paths)
            return false;
        sources_ = *paths;
        std::vector<ListEntry> entries;
        for (const QString& path : sources_)
            entries.push_back(sourceEntry(path));
        setEntries(entries, {}); // at least the home folder
        return true;
    });
}

void SourcesPage::add(const QString& path)
{
    // The home folder is backed up only until a folder is named. Whoever adds one does not mean to lose it.
    if (sources_.size() == 1)
        setup_.prepare({u"addsource"_s, u"--"_s, sources_.first()});
    setup_.change({u"addsource"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(shownName(path)));
}

void SourcesPage::remove(const QString& path, const QString& name)
{
    const auto go = [this, path, name] {
        setup_.change({u"removesource"_s, u"--"_s, path}, localizedString("disksRemoveFailed").arg(name));
    };
    // The home folder takes the place of the last folder that was named. Nobody expects that much.
    if (sources_.size() == 1 && path != QDir::homePath())
        setup_.confirm(localizedString("disksHomeAlertMessage"), localizedString("disksHomeAlertInformative").arg(name),
                       localizedString("disksRemoveTitle"), go);
    else
        go();
}

ExclusionsPage::ExclusionsPage(Setup& setup, QWidget* parent)
    : ListPage(localizedString("disksExclusionsTitle"), localizedString("disksExclusionsExplanation"), parent)
    , setup_(setup)
{
    auto* menu = new QMenu(this);
    addButton(localizedString("disksAddTitle"))->setMenu(menu);
    const auto add = [this, menu](const char* key, const auto& choose) {
        menu->addAction(panelTitle(key), this, choose)->setObjectName(QLatin1StringView(key));
    };
    add("disksAddFolderTitle", [this] { addPath("disksAddFolderTitle", false); });
    add("disksAddFileTitle", [this] { addPath("disksAddFileTitle", true); });
    add("disksAddNameTitle", [this] { addByRule(ExclusionDialog::Kind::Name); });
    add("disksAddSizeTitle", [this] { addByRule(ExclusionDialog::Kind::Size); });
    connect(this, &ListPage::removeRequested, this, [this](const QString& id, const QString& title) {
        setup_.change(exclusionRemoval(id), localizedString("disksRemoveFailed").arg(title));
    });
}

void ExclusionsPage::reload()
{
    setup_.read({u"listexclusions"_s, u"-X"_s}, [this](const QByteArray& answer) {
        const auto exclusions = readExclusions(answer);
        if (exclusions)
            setEntries(exclusionEntries(*exclusions), localizedString("disksNoExclusions"));
        return exclusions.has_value();
    });
}

void ExclusionsPage::addPath(const char* titleKey, bool files)
{
    choose(localizedString(titleKey), files, [this](const QString& path) {
        setup_.change({u"addexclusion"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(shownName(path)));
    });
}

void ExclusionsPage::addByRule(ExclusionDialog::Kind kind)
{
    auto* dialog = new ExclusionDialog(kind, setup_, this);
    const QString command = kind == ExclusionDialog::Kind::Name ? u"excludename"_s : u"excludelarger"_s;
    connect(dialog, &ExclusionDialog::chosen, this, [this, command](const QString& value) {
        setup_.change({command, u"--"_s, value}, localizedString("disksAddFailed").arg(shownText(value)));
    });
    dialog->open();
}

} // namespace quillon
