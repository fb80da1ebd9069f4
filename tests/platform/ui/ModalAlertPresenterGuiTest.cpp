#include "Alert.h"
#include "EventLoop.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class ModalAlertPresenterTest : public testing::Test {
protected:
    void present(const QString& message, const QStringList& buttons)
    {
        alerts_->present({.style = AlertStyle::Warning,
                          .messageText = message,
                          .informativeText = u"What it is about."_s,
                          .buttons = buttons},
                         [this](int response) { answers_.push_back(response); });
    }
    static QWidget* window()
    {
        QWidget* modal = QApplication::activeModalWidget();
        EXPECT_TRUE(modal && QTest::qWaitForWindowActive(modal));
        return modal;
    }
    static void click(const QString& title)
    {
        for (QPushButton* button : window()->findChildren<QPushButton*>())
            if (button->text() == title) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        FAIL() << "no button " << title.toStdString();
    }

    std::unique_ptr<ModalAlertPresenter> alerts_ = std::make_unique<ModalAlertPresenter>();
    std::vector<int> answers_;
};

TEST_F(ModalAlertPresenterTest, TakesAUsersClosingOfTheWindowForEscapeAndTheProgramsEndForNoAnswer)
{
    const auto closeByUser = [] {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        QCoreApplication::instance()->notify(window(), &event); // sendEvent() would make it the program's again
    };
    present(u"A"_s, {u"Open"_s, u"Cancel"_s});
    closeByUser();
    EXPECT_EQ(answers_, std::vector{1001});
    present(u"A"_s, {u"Open"_s, u"Cancel"_s});
    EXPECT_TRUE(window()->close());
    EXPECT_EQ(answers_.size(), 1U);
}

TEST_F(ModalAlertPresenterTest, ShowsOneAlertAtATimeInTheOrderTheyCameIn)
{
    present(u"A"_s, {u"A1"_s, u"A2"_s});
    alerts_->present({.messageText = u"B"_s, .informativeText = {}, .buttons = {u"B1"_s}},
                     [this](int) { present(u"D"_s, {u"D1"_s}); });
    present(u"C"_s, {u"C1"_s, u"C2"_s, u"C3"_s});
    click(u"A2"_s);
    click(u"B1"_s);
    click(u"C3"_s);
    EXPECT_EQ(answers_, (std::vector{1001, 1002})) << "each once, by the place of the chosen button";
    click(u"D1"_s);
    EXPECT_EQ(answers_.back(), 1000);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ModalAlertPresenterTest, ClosesUnansweredWithItsPresenterWhichAnAnswerMayEnd)
{
    present(u"A"_s, {u"OK"_s});
    present(u"B"_s, {u"OK"_s});
    alerts_.reset();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(answers_.empty());
    alerts_ = std::make_unique<ModalAlertPresenter>();
    alerts_->present({.messageText = u"A"_s, .informativeText = {}, .buttons = {u"Quit"_s}},
                     [this](int) { alerts_.reset(); });
    click(u"Quit"_s);
    EXPECT_EQ(alerts_, nullptr);
}

} // namespace
} // namespace quillon
