#include "AboutViewController.h"
#include "ClippedTexts.h"
#include "DataHelper.h"
#include "FakeServices.h"
#include "LocalDates.h"
#include "LocalizedString.h"
#include "MakerSite.h"
#include "Popover.h"
#include "VirtualRunLoop.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
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

    QString text(const char* label) const { return panel_->findChild<QLabel*>(QLatin1StringView(label))->text(); }
    QPushButton& button(const char* name) const { return *panel_->findChild<QPushButton*>(QLatin1StringView(name)); }
    void click(const char* name) const { QTest::mouseClick(&button(name), Qt::LeftButton); }

    VirtualRunLoop runLoop_{local(2026, 11, 21, 10)};
    FakeWorkspace workspace_;
    FakeAlerts alerts_;
    Popover popover_;
    AboutViewController* panel_ = new AboutViewController(runLoop_, workspace_, alerts_); ///< owned by the popover
};

TEST_F(AboutPanel, SaysWhichVersionThisIsAndWhoseItIs)
{
    EXPECT_EQ(text("versionLabel"), u"Version: "_s + DataHelper::bundleVersionString());
    EXPECT_TRUE(text("copyrightLabel").contains(u"2026"_s)) << text("copyrightLabel").toStdString();
    EXPECT_EQ(button("emailButton").text().remove(u'&'), makersite::supportAddress());
    const QImage icon = panel_->findChild<QWidget*>(u"applicationIcon"_s)->grab().toImage();
    EXPECT_NE(icon.pixelColor(icon.rect().center()), icon.pixelColor(0, 0)) << "the icon is drawn";
}

TEST_F(AboutPanel, ButtonsOpenTheMakersPages)
{
    click("websiteButton");
    click("termsButton");
    click("appIconCreditsButton");
    EXPECT_EQ(workspace_.opened, (QList<QUrl>{makersite::page(u"/"_s), makersite::page(u"/quillon/terms/"_s),
                                              makersite::iconCollection()}));
    for (const QUrl& page : workspace_.opened)
        EXPECT_TRUE(page.isValid() && page.scheme() == u"https"_s) << page.toString().toStdString();
    EXPECT_TRUE(alerts_.presented.empty());
}

TEST_F(AboutPanel, FeedbackMailNamesTheVersionInAnEncodedSubject)
{
    click("emailButton");
    ASSERT_EQ(workspace_.opened.size(), 1);
    const QString version = DataHelper::bundleVersionString().replace(u' ', "%20"_L1);
    EXPECT_EQ(QString::fromLatin1(workspace_.opened.first().toEncoded()),
              "mailto:"_L1 + makersite::supportAddress() + "?subject=Feedback%20Quillon%20Version%20"_L1 + version);
    EXPECT_TRUE(alerts_.presented.empty());
}

TEST_F(AboutPanel, WithoutAMailApplicationTheAddressIsTold)
{
    workspace_.opens = false;
    click("emailButton");
    ASSERT_EQ(alerts_.presented.size(), 1U);
    const AlertRequest& warning = alerts_.presented.front().first;
    EXPECT_EQ(warning.style, AlertStyle::Warning);
    EXPECT_EQ(warning.messageText, u"Warning"_s);
    EXPECT_TRUE(warning.informativeText.contains(makersite::supportAddress()));
    EXPECT_EQ(warning.buttons, QStringList{u"Close"_s});
}

TEST_F(AboutPanel, ThePrivacyPolicyIsToldHereAndReadInFullOnTheWebSite)
{
    click("privacyPolicyButton");
    ASSERT_EQ(alerts_.presented.size(), 1U);
    const auto& [policy, answer] = alerts_.presented.front();
    EXPECT_EQ(policy.informativeText.count(u"Quillon"_s), 4);
    EXPECT_FALSE(policy.informativeText.contains(u'%'));
    EXPECT_EQ(policy.buttons, (QStringList{u"Close"_s, u"Read More"_s}));
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
        for (const qreal factor : {1.0, 2.0}) {
            QFont font = before;
            font.setPointSizeF(before.pointSizeF() * factor);
            QApplication::setFont(font);
            panel_ = new AboutViewController(runLoop_, workspace_, alerts_);
            popover_.setContentView(panel_);
            QCoreApplication::processEvents();
            EXPECT_EQ(clippedTexts(*panel_), "") << language.toStdString() << ' ' << factor;
        }
    }
    QApplication::setFont(before);
    installStringTable(u"en"_s);
}

TEST_F(AboutPanel, IsReachedByKeyboardAndToldToAssistiveTechnology)
{
    button("emailButton").setFocus();
    for (const char* name : {"websiteButton", "appIconCreditsButton", "privacyPolicyButton", "termsButton"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(button(name).hasFocus()) << name;
        const auto* seen = QAccessible::queryAccessibleInterface(&button(name));
        EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty()) << name;
        EXPECT_FALSE(seen->text(QAccessible::Description).isEmpty()) << name;
    }
    QTest::keyClick(&button("termsButton"), Qt::Key_Space);
    EXPECT_EQ(workspace_.opened.size(), 1);
}

} // namespace quillon
