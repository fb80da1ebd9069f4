#include "AboutViewController.h"
#include "ApplicationIdentity.h"
#include "ClippedTexts.h"
#include "DataHelper.h"
#include "EventLoop.h"
#include "FakeServices.h"
#include "LocalDates.h"
#include "LocalizedString.h"
#include "Popover.h"
#include "VirtualRunLoop.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// The about panel in its popover, in the year 2026.
class AboutPanel : public testing::Test {
protected:
    AboutPanel()
    {
        popover_.setContentView(panel_);
        popover_.setAnimates(false);
        popover_.showRelativeTo({}, RectEdge::MinY);
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&popover_)); }

    void click(const char* name) const
    {
        QTest::mouseClick(panel_->findChild<QPushButton*>(QLatin1StringView(name)), Qt::LeftButton);
    }

    VirtualRunLoop runLoop_{local(2026, 11, 21, 10)};
    FakeWorkspace workspace_;
    FakeAlerts alerts_;
    Popover popover_;
    AboutViewController* panel_ = new AboutViewController(runLoop_, workspace_, alerts_); ///< owned by the popover
};

TEST_F(AboutPanel, SaysWhichVersionThisIsAndWhoseItIsAlsoToAssistiveTechnology)
{
    const QString help = u"Questions, ideas, or something that does not work? Write to us."_s;
    const QString credits = u"Quillon is built on Qt, ICU, and libplist. On Linux, restic makes the backups."_s;
    const QString privacy = u"Quillon sends nothing about you or your files."_s;
    const struct {
        const char* part;
        QString name;
        QString description = {};
    } parts[] = {
        {"applicationIcon", u"Quillon"_s},
        {"nameLabel", u"Quillon"_s},
        {"versionLabel", u"Version: "_s + DataHelper::bundleVersionString()},
        {"copyrightLabel", u"© 2026 the Quillon authors"_s},
        {"emailButton", makersite::supportAddress(), help},
        {"websiteButton", u"Website"_s, help},
        {"appIconCreditsButton", u"Icon from "_s + makersite::iconCollection().host(), credits},
        {"privacyPolicyButton", u"Privacy Policy"_s, privacy},
        {"termsButton", u"Terms of Use"_s, privacy},
    };
    for (const auto& [name, said, description] : parts) {
        auto& part = *panel_->findChild<QWidget*>(QLatin1StringView(name));
        const auto* seen = QAccessible::queryAccessibleInterface(&part);
        EXPECT_EQ(seen->text(QAccessible::Name), said);
        EXPECT_EQ(seen->text(QAccessible::Description), description) << name;
        if (auto* button = qobject_cast<QPushButton*>(&part)) {
            EXPECT_TRUE(button->text().contains(u'&')) << name << " has a letter that presses it";
            EXPECT_TRUE(button->hasFocus()) << name;
            QTest::keyClick(button, Qt::Key_Tab);
        }
    }
    const QWidget& icon = *panel_->findChild<QWidget*>(u"applicationIcon"_s);
    EXPECT_EQ(icon.size(), QSize(112, 112));
    const QImage drawn = panel_->grab(icon.geometry()).toImage();
    EXPECT_NE(drawn.pixelColor(drawn.rect().center()), drawn.pixelColor(0, 0));
}

TEST_F(AboutPanel, EveryButtonOpensItsPageAndTheMailNamesTheVersion)
{
    for (const char* name : {"websiteButton", "termsButton", "appIconCreditsButton", "emailButton"})
        click(name);
    const QString version = DataHelper::bundleVersionString().replace(u' ', "%20"_L1);
    const QUrl mail(u"mailto:%1?subject=Feedback%20Quillon%20Version%20"_s.arg(makersite::supportAddress()) + version);
    EXPECT_EQ(workspace_.opened, (QList<QUrl>{makersite::page(u"/"_s), makersite::page(u"/quillon/terms/"_s),
                                              makersite::iconCollection(), mail}));
    EXPECT_TRUE(alerts_.presented.empty());
    workspace_.opens = false;
    click("emailButton");
    const AlertRequest warning = alerts_.presented.front().first;
    EXPECT_EQ(warning.style, AlertStyle::Warning);
    EXPECT_EQ(warning.messageText, u"Warning"_s);
    EXPECT_EQ(warning.informativeText,
              localizedString("AlertMessageMailNotConfigured").arg(makersite::supportAddress()));
    EXPECT_EQ(warning.buttons, QStringList{u"Close"_s});
}

TEST_F(AboutPanel, ThePrivacyPolicyIsToldHereAndReadInFullOnTheWebSite)
{
    click("privacyPolicyButton");
    const auto& [policy, answer] = alerts_.presented.front();
    EXPECT_EQ(policy.style, AlertStyle::Warning);
    EXPECT_EQ(policy.messageText, u"Privacy Policy"_s);
    EXPECT_EQ(policy.informativeText.count(QRegularExpression(u"\\bQuillon\\b"_s)), 4);
    EXPECT_FALSE(policy.informativeText.contains(u'%'));
    EXPECT_EQ(policy.buttons, (QStringList{u"Close"_s, u"Read More"_s}));
    EXPECT_EQ(policy.escapeButton, 0);
    answer(alertFirstButtonReturn);
    EXPECT_TRUE(workspace_.opened.isEmpty());
    answer(alertSecondButtonReturn);
    EXPECT_EQ(workspace_.opened, QList<QUrl>{makersite::page(u"/quillon/privacy/"_s)});
}

TEST_F(AboutPanel, ShowsAllOfItsTextsInEveryLanguageAndSize)
{
    const QFont before = QApplication::font();
    for (const QString& language : tableLanguages()) {
        installStringTable(language);
        panel_ = new AboutViewController(runLoop_, workspace_, alerts_);
        popover_.setContentView(panel_);
        for (const qreal factor : {1.0, 2.0}) {
            QFont font = before;
            font.setPointSizeF(before.pointSizeF() * factor);
            QApplication::setFont(font);
            const auto* name = panel_->findChild<QLabel*>(u"nameLabel"_s);
            EXPECT_TRUE(runUntil([&] { return name->font().pointSizeF() > 1.5 * font.pointSizeF(); }, 5));
            EXPECT_TRUE(runUntil([&] { return clippedTexts(*panel_).empty(); }, 5))
                << clippedTexts(*panel_) << language.toStdString() << ' ' << factor;
        }
        QApplication::setFont(before);
    }
    installStringTable(u"en"_s);
}

} // namespace quillon
