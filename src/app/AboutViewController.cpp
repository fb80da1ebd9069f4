#include "AboutViewController.h"

#include "Accessibility.h"
#include "ApplicationIdentity.h"
#include "DataHelper.h"
#include "LocalizedString.h"
#include "PopoverPlacement.h"
#include "RunLoop.h"
#include "Services.h"
#include "ui_AboutView.h"

#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

ApplicationIcon::ApplicationIcon(QWidget* parent)
    : QWidget(parent)
    , renderer_(u":/icon/com.Orvane.Quillon.svg"_s)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ApplicationIcon::sizeHint() const
{
    constexpr int side = 112; // logical pixels
    return {side, side};
}

void ApplicationIcon::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    renderer_.render(&painter, rect());
}

namespace {

const QString applicationName = identity::name;

QUrl feedbackMail()
{
    const QString subject = u"Feedback %1 Version %2"_s.arg(applicationName, DataHelper::bundleVersionString());
    // What a query may hold as it is: RFC 3986, 3.4.
    const QByteArray encoded = QUrl::toPercentEncoding(subject, "!$&'()*+,;=:@/?");
    return QUrl(u"mailto:%1?subject=%2"_s.arg(makersite::supportAddress(), QString::fromLatin1(encoded)));
}

} // namespace

AboutViewController::AboutViewController(RunLoop& runLoop, Workspace& workspace, AlertPresenter& alerts,
                                         QWidget* parent)
    : QWidget(parent)
    , workspace_(workspace)
    , alerts_(alerts)
    , ui_(std::make_unique<Ui::AboutView>())
{
    auto view = std::make_unique<QWidget>();
    ui_->setupUi(view.get());
    auto* area = new ScreenFittingArea(this);
    area->setContent(view.release());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);

    fillOutlets(runLoop);
    nameControls();
    arrangeForFont();
    connect(ui_->emailButton, &QPushButton::clicked, this, &AboutViewController::emailButtonPressed);
    connect(ui_->websiteButton, &QPushButton::clicked, this, &AboutViewController::websiteButtonPressed);
    connect(ui_->appIconCreditsButton, &QPushButton::clicked, this, &AboutViewController::appIconCreditsButtonPressed);
    connect(ui_->privacyPolicyButton, &QPushButton::clicked, this, &AboutViewController::privacyPolicyButtonPressed);
    connect(ui_->termsButton, &QPushButton::clicked, this, &AboutViewController::termsButtonPressed);
}

AboutViewController::~AboutViewController() = default;

void AboutViewController::fillOutlets(RunLoop& runLoop)
{
    ui_->nameLabel->setText(applicationName);
    ui_->versionLabel->setText(u"%1: %2"_s.arg(localizedString("versionTitle"), DataHelper::bundleVersionString()));
    ui_->copyrightLabel->setText(localizedString("copyrightTitle").arg(DataHelper::getCurrentYear(runLoop.now())));
    ui_->supportDetailsLabel->setText(localizedString("supportDetailsMessage"));
    ui_->creditsLabel->setText(localizedString("creditsTitle"));
    ui_->privacyPolicyLabel->setText(localizedString("privacyPolicyDetailsMessage"));
    // A table may hold a friendlier text for the address; without one the address itself is shown.
    ui_->emailButton->setText(localizedString(makersite::supportAddress().toUtf8().constData()));
    ui_->websiteButton->setText(localizedString("websiteButtonTitle"));
    ui_->appIconCreditsButton->setText(localizedString("appIconCreditsTitle").arg(makersite::iconCollection().host()));
    ui_->privacyPolicyButton->setText(localizedString("privacyPolicyAlertTitle"));
    ui_->termsButton->setText(localizedString("termsButtonTitle"));
}

void AboutViewController::nameControls()
{
    ui_->applicationIcon->setAccessibleName(applicationName);
    ui_->emailButton->setAccessibleDescription(ui_->supportDetailsLabel->text());
    ui_->websiteButton->setAccessibleDescription(ui_->supportDetailsLabel->text());
    ui_->appIconCreditsButton->setAccessibleDescription(ui_->creditsLabel->text());
    ui_->privacyPolicyButton->setAccessibleDescription(ui_->privacyPolicyLabel->text());
    ui_->termsButton->setAccessibleDescription(ui_->privacyPolicyLabel->text());
    assignMnemonics(
        {ui_->emailButton, ui_->websiteButton, ui_->appIconCreditsButton, ui_->privacyPolicyButton, ui_->termsButton});
}

void AboutViewController::arrangeForFont()
{
    QFont heading = font();
    heading.setBold(true);
    constexpr qreal larger = 1.6;
    heading.setPointSizeF(font().pointSizeF() * larger);
    ui_->nameLabel->setFont(heading);
    constexpr int lineDigits = 54; // in a font that has ideographs the average character is as wide as one of them
    for (QLabel* text : {ui_->supportDetailsLabel, ui_->creditsLabel, ui_->privacyPolicyLabel})
        text->setMinimumWidth(fontMetrics().horizontalAdvance(u'0') * lineDigits);
}

void AboutViewController::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        arrangeForFont();
}

void AboutViewController::emailButtonPressed()
{
    const QPointer<AboutViewController> self(this);
    workspace_.openURL(feedbackMail(), [self](bool opened) {
        if (self && !opened)
            self->tellThatMailIsNotConfigured();
    });
}

void AboutViewController::tellThatMailIsNotConfigured()
{
    AlertRequest warning;
    warning.style = AlertStyle::Warning;
    warning.messageText = localizedString("AlertTitleWarning");
    warning.informativeText = localizedString("AlertMessageMailNotConfigured").arg(makersite::supportAddress());
    warning.buttons = {localizedString("AlertButtonClose")};
    alerts_.present(warning, {});
}

void AboutViewController::websiteButtonPressed()
{
    workspace_.openURL(makersite::page(u"/"_s), {});
}

void AboutViewController::appIconCreditsButtonPressed()
{
    workspace_.openURL(makersite::iconCollection(), {});
}

void AboutViewController::privacyPolicyButtonPressed()
{
    AlertRequest policy;
    policy.style = AlertStyle::Warning;
    policy.messageText = localizedString("privacyPolicyAlertTitle");
    policy.informativeText = localizedString("privacyPolicyAlertMessage").arg(applicationName);
    policy.buttons = {localizedString("AlertButtonClose"), localizedString("AlertButtonReadMore")};
    policy.escapeButton = 0;
    const QPointer<AboutViewController> self(this);
    alerts_.present(policy, [self](int response) {
        if (self && response == alertSecondButtonReturn)
            self->workspace_.openURL(makersite::page(u"/quillon/privacy/"_s), {});
    });
}

void AboutViewController::termsButtonPressed()
{
    workspace_.openURL(makersite::page(u"/quillon/terms/"_s), {});
}

} // namespace quillon
