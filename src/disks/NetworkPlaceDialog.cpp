#include "NetworkPlaceDialog.h"

#include "LocalizedString.h"
#include "NetworkPlaceForm.h"
#include "Symbol_linux.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Step = PlaceAdvice::Step;

/// What the button says that goes on.
const char* titleOf(Step step, bool isKnown)
{
    switch (step) {
    case Step::Try:
        break;
    case Step::Trust:
        return "disksPlaceTrustTitle";
    case Step::TakeUp:
        return "disksPlaceTakeUpTitle";
    case Step::Keep:
        return isKnown ? "disksSaveTitle" : "disksAddTitle";
    }
    return "disksPlaceTryTitle";
}

QLineEdit* makeKeyField(const char* name, const char* title)
{
    auto* field = new QLineEdit;
    field->setObjectName(QLatin1StringView(name));
    field->setAccessibleName(localizedString(title));
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(field->font().pointSizeF()); // that font does not follow larger texts
    field->setFont(font);
    field->hide();
    return field;
}

} // namespace

NetworkPlaceDialog::NetworkPlaceDialog(Setup& setup, const std::optional<BackupDisk>& known, QWidget* parent)
    : QDialog(parent)
    , setup_(setup)
    , known_(known)
    , form_(new NetworkPlaceForm(known))
    , sign_(new QLabel)
    , message_(new QLabel)
    , fingerprint_(makeKeyField("fingerprint", "disksPlaceFingerprint"))
    , recoveryKey_(makeKeyField("recoveryKey", "disksPlaceRecoveryKey"))
    , progress_(new QProgressBar)
{
    setObjectName(u"networkPlace"_s);
    setWindowTitle(known ? localizedString("disksEditPlaceTitle").arg(known->name)
                         : localizedString("disksAddPlaceTitle"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    column->addWidget(form_);
    column->addWidget(makeAnswer());
    column->addStretch();
    column->addWidget(makeButtons());
    constexpr int width = 64; // characters
    setMinimumWidth(width * fontMetrics().averageCharWidth());

    connect(form_, &NetworkPlaceForm::edited, this, &NetworkPlaceDialog::edited);
    connect(form_, &NetworkPlaceForm::rearranged, this, [this] { fit(0); });
    edited();
}

NetworkPlaceDialog::~NetworkPlaceDialog() = default;

QWidget* NetworkPlaceDialog::makeAnswer()
{
    message_->setObjectName(u"message"_s);
    message_->setTextFormat(Qt::PlainText);
    message_->setWordWrap(true);
    message_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // So that the window stays as it is while the text changes.
    message_->setMinimumHeight(3 * fontMetrics().height());
    const int side = 2 * fontMetrics().height();
    sign_->setPixmap(
        symbolPixmap(u"exclamationmark.triangle"_s, side, devicePixelRatioF(), palette().color(QPalette::WindowText)));
    fingerprint_->setReadOnly(true);
    recoveryKey_->setPlaceholderText(localizedString("disksPlaceRecoveryKey"));
    progress_->setRange(0, 0);
    progress_->setTextVisible(false);

    auto* line = new QHBoxLayout;
    line->addWidget(sign_, 0, Qt::AlignTop);
    line->addWidget(message_, 1);
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins({});
    column->addLayout(line);
    for (QWidget* part : std::initializer_list<QWidget*>{fingerprint_, recoveryKey_, progress_})
        column->addWidget(part);
    connect(recoveryKey_, &QLineEdit::textChanged, this,
            [this](const QString& key) { goOn_->setEnabled(!key.trimmed().isEmpty()); });
    return box;
}

QWidget* NetworkPlaceDialog::makeButtons()
{
    auto* buttons = new QDialogButtonBox(this); // a dialog remembers a default button that is made in it
    cancel_ = buttons->addButton(localizedString("disksCancelTitle"), QDialogButtonBox::RejectRole);
    cancel_->setObjectName(u"cancel"_s);
    cancel_->setAutoDefault(false);
    goOn_ = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    goOn_->setObjectName(u"goOn"_s);
    goOn_->setDefault(true);
    connect(cancel_, &QPushButton::clicked, this, &NetworkPlaceDialog::reject);
    connect(goOn_, &QPushButton::clicked, this, &NetworkPlaceDialog::goOn);
    return buttons;
}

void NetworkPlaceDialog::reject()
{
    if (tmutil_)
        edited();
    else if (!isChanging_)
        QDialog::reject();
}

QString NetworkPlaceDialog::url() const
{
    return known_ ? known_->path : form_->place().url();
}

/// That whose key is trusted or not.
NetworkPlace NetworkPlaceDialog::server() const
{
    using enum NetworkPlace::Field;
    const NetworkPlace place = form_->place();
    return {.kind = place.kind, .texts = {{Server, place.text(Server)}, {Port, place.text(Port)}}};
}

QStringList NetworkPlaceDialog::callOf(QStringList command) const
{
    if (form_->isAccessGiven())
        command << u"--credentials"_s << u"-"_s;
    if (!trusted_.isEmpty())
        command << u"--accept-host-key"_s << trusted_;
    return command << url();
}

QByteArray NetworkPlaceDialog::input() const
{
    return form_->isAccessGiven() ? form_->place().credentials() : QByteArray();
}

/// What an answer said is of a place that is described in another way now.
void NetworkPlaceDialog::edited()
{
    tmutil_.reset();
    if (server() != trustedServer_)
        trusted_.clear();
    advise({Step::Try, form_->isAccessGiven() ? form_->place().lack() : QString()});
    goOn_->setEnabled(advice_.text.isEmpty());
}

void NetworkPlaceDialog::goOn()
{
    switch (advice_.step) {
    case Step::Try:
        return ask();
    case Step::Trust:
        return trust();
    case Step::TakeUp:
        return takeUp();
    case Step::Keep:
        return keep();
    }
}

void NetworkPlaceDialog::ask()
{
    setWaiting("disksPlaceAsking");
    const auto& services = setup_.services();
    tmutil_ = std::make_unique<TmutilClient>(services.launcher, services.runLoop, services.tmutil);
    tmutil_->call(
        callOf({u"setdestination"_s, u"--try"_s, u"-X"_s}),
        [this](const TmutilAnswer& answer) { take(PlaceTrial::read(answer)); }, input());
}

void NetworkPlaceDialog::trust()
{
    const auto askAgain = [this] {
        trusted_ = fingerprint_->text();
        trustedServer_ = server();
        ask();
    };
    if (!advice_.isAlarming)
        return askAgain();
    const QString server = form_->place().text(NetworkPlace::Field::Server);
    setup_.confirm(localizedString("disksPlaceChangedKeyMessage").arg(server),
                   localizedString("disksPlaceChangedKeyInformative"), localizedString("disksPlaceTrustTitle"),
                   askAgain);
}

void NetworkPlaceDialog::keep()
{
    change(callOf(QStringList{u"setdestination"_s, u"-a"_s, u"-X"_s} + form_->limits()), input());
}

void NetworkPlaceDialog::takeUp()
{
    // An empty line ends the credentials where there are some.
    const QByteArray before = form_->isAccessGiven() ? input() + '\n' : QByteArray();
    change(callOf({u"adopt"_s}), before + recoveryKey_->text().trimmed().toUtf8() + '\n');
}

void NetworkPlaceDialog::change(const QStringList& call, const QByteArray& input)
{
    const Step step = advice_.step;
    setWaiting("disksPlaceKeeping");
    isChanging_ = true;
    cancel_->setEnabled(false);
    setup_.change(call, input, [this, step](const TmutilAnswer& answer) {
        isChanging_ = false;
        cancel_->setEnabled(true);
        if (answer.success) {
            Q_EMIT kept();
            return accept();
        }
        PlaceAdvice advice = PlaceAdvice::on(PlaceTrial::read(answer), form_->place(), trusted_);
        if (step == Step::TakeUp)
            advice.step = step; // the key may have been mistyped
        showAnswer(advice);
    });
}

void NetworkPlaceDialog::take(const PlaceTrial& trial)
{
    tmutil_.reset();
    fingerprint_->setText(trial.fingerprint);
    fingerprint_->setCursorPosition(0);
    showAnswer(PlaceAdvice::on(trial, form_->place(), trusted_));
}

/// Whoever hears the window hears the answer with what has the keyboard then.
void NetworkPlaceDialog::showAnswer(const PlaceAdvice& advice)
{
    advise(advice);
    (advice.step == Step::TakeUp ? static_cast<QWidget*>(recoveryKey_) : goOn_)->setFocus();
}

void NetworkPlaceDialog::setWaiting(const char* line)
{
    cancel_->setFocus(); // a button that is disabled would give it to just any other
    for (QWidget* part : std::initializer_list<QWidget*>{form_, recoveryKey_, goOn_})
        part->setEnabled(false);
    sign_->hide();
    fingerprint_->hide();
    progress_->show();
    tell(localizedString(line));
}

void NetworkPlaceDialog::advise(const PlaceAdvice& advice)
{
    advice_ = advice;
    for (QWidget* part : std::initializer_list<QWidget*>{form_, recoveryKey_, goOn_})
        part->setEnabled(true);
    sign_->setVisible(advice.isAlarming);
    fingerprint_->setVisible(advice.step == Step::Trust);
    recoveryKey_->setVisible(advice.step == Step::TakeUp);
    progress_->hide();
    goOn_->setText(localizedString(titleOf(advice.step, known_.has_value())));
    tell(advice.text);
    if (advice.step == Step::TakeUp)
        goOn_->setEnabled(!recoveryKey_->text().trimmed().isEmpty());
}

void NetworkPlaceDialog::tell(const QString& line)
{
    message_->setText(line);
    for (QWidget* part : std::initializer_list<QWidget*>{goOn_, recoveryKey_})
        part->setAccessibleDescription(line); // is read out with what depends on it
    fit(isVisible() ? height() : 0);
}

/// Makes room for what is asked for and said now.
void NetworkPlaceDialog::fit(int least)
{
    layout()->activate();
    resize(width(), std::max(least, layout()->totalHeightForWidth(width())));
}

} // namespace quillon
