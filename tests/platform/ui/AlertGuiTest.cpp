#include "Alert.h"
#include "ClippedTexts.h"
#include "LocalizedString.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>
#include <memory>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class AlertTest : public testing::Test {
protected:
    void show(const AlertRequest& request)
    {
        chosen_ = 0;
        alert_ = std::make_unique<Alert>(request);
        for (const QPushButton* button : alert_->buttons())
            QObject::connect(button, &QPushButton::clicked, alert_.get(),
                             [this, button] { chosen_ = alert_->responseOf(button); });
        alert_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(alert_.get()));
    }
    int afterKey(Qt::Key key)
    {
        chosen_ = 0;
        QTest::keyClick(QApplication::focusWidget(), key);
        return chosen_;
    }
    QTextEdit* text(const QString& name) const { return alert_->findChild<QTextEdit*>(name); }

    std::unique_ptr<Alert> alert_;
    int chosen_ = 0;
};

TEST_F(AlertTest, SaysItsTextsAsTheyAreAndLeavesOutTheOneThatIsEmpty)
{
    show({.messageText = u"<b>Disk & \"50%1\"</b>"_s,
          .informativeText = u"<i>a & b</i>\nsecond line"_s,
          .buttons = {u"Save & quit"_s, u"Cancel"_s}});
    EXPECT_EQ(text(u"messageText"_s)->toPlainText(), u"<b>Disk & \"50%1\"</b>"_s);
    EXPECT_EQ(text(u"informativeText"_s)->toPlainText(), u"<i>a & b</i>\nsecond line"_s);
    EXPECT_TRUE(text(u"informativeText"_s)->textInteractionFlags() & Qt::TextSelectableByMouse) << "to be copied";
    EXPECT_EQ(alert_->buttons().first()->text(), u"Save && quit"_s);
    EXPECT_EQ(alert_->buttons().first()->accessibleName(), u"Save & quit"_s);
    EXPECT_EQ(alert_->accessibleName(), u"<b>Disk & \"50%1\"</b>"_s);
    show({.messageText = {}, .informativeText = u"Only this."_s, .buttons = {u"Close"_s}});
    EXPECT_EQ(text(u"messageText"_s), nullptr);
    EXPECT_EQ(alert_->accessibleName(), u"Only this."_s);
}

TEST_F(AlertTest, ReturnPressesTheFirstButtonOrTheOneChosenWithTab)
{
    show({.messageText = u"A"_s, .informativeText = {}, .buttons = {u"Open"_s, u"Later"_s, u"Cancel"_s}});
    EXPECT_EQ(afterKey(Qt::Key_Return), 1000);
    afterKey(Qt::Key_Tab);
    EXPECT_EQ(afterKey(Qt::Key_Return), 1001);
    QTest::mouseClick(text(u"messageText"_s)->viewport(), Qt::LeftButton);
    EXPECT_EQ(afterKey(Qt::Key_Return), 1000) << "with the keyboard in the text";
}

TEST_F(AlertTest, EscapeDestroysNothingAndThereIsAlwaysAWayOut)
{
    installStringTable(u"es"_s);
    const struct {
        QStringList buttons;
        std::optional<int> destructive;
        int response;
    } table[] = {{{u"Open"_s, u"Later"_s, u"Cancel"_s}, {}, 1002},
                 {{u"Cancel"_s, u"Delete"_s}, 1, 1000},
                 {{u"Delete"_s}, 0, 1000},
                 {{}, {}, 1000}};
    for (const auto& [buttons, destructive, response] : table) {
        show({.messageText = u"A"_s, .informativeText = {}, .buttons = buttons, .destructiveButton = destructive});
        EXPECT_EQ(afterKey(Qt::Key_Escape), response) << buttons.join(u' ').toStdString();
        for (const QPushButton* button : alert_->buttons()) {
            const QColor color = button->palette().color(QPalette::ButtonText);
            EXPECT_EQ(color.red() > color.green() + 50, alert_->buttons().indexOf(button) == destructive);
        }
    }
    EXPECT_EQ(alert_->buttons().first()->text(), u"Aceptar"_s) << "its own button speaks the program's language";
    installStringTable(u"en"_s);
}

TEST_F(AlertTest, ShowsAllOfALongText)
{
    show({.messageText = u"/one/word/"_s + QString(300, u'm'),
          .informativeText = u"Several words. "_s.repeated(40),
          .buttons = {u"A rather long title of a button"_s, u"Another title that is long"_s}});
    EXPECT_EQ(clippedTexts(*alert_), "");
    show({.messageText = u"A"_s, .informativeText = u"Line.\n"_s.repeated(400), .buttons = {u"Close"_s}});
    EXPECT_LT(alert_->height(), alert_->screen()->availableGeometry().height());
    EXPECT_TRUE(text(u"informativeText"_s)->verticalScrollBar()->isVisible());
}

} // namespace
} // namespace quillon
