#include "AlertBox.h"
#include "host/Waiting.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class AlertBoxTest : public testing::Test {
protected:
    QMessageBox* present(const QStringList& buttons)
    {
        alerts_->present({.style = AlertStyle::Warning,
                          .messageText = u"<b>Disk & \"50%1\"</b>"_s,
                          .informativeText = u"<i>a & b</i>"_s,
                          .buttons = buttons},
                         [this](int response) { answers_.push_back(response); });
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        EXPECT_TRUE(box && QTest::qWaitForWindowActive(box));
        return box;
    }

    std::unique_ptr<AlertBox> alerts_ = std::make_unique<AlertBox>();
    std::vector<int> answers_;
};

TEST_F(AlertBoxTest, SaysItsTextsAsTheyAre)
{
    const QMessageBox* box = present({u"Save & quit"_s, u"Cancel"_s});
    QStringList shown;
    for (const QLabel* label : box->findChildren<QLabel*>()) {
        if (label->text().isEmpty())
            continue;
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        shown.append(label->text());
    }
    EXPECT_TRUE(shown.contains(u"<b>Disk & \"50%1\"</b>"_s));
    EXPECT_TRUE(shown.contains(u"<i>a & b</i>"_s));
    EXPECT_EQ(box->defaultButton()->text(), u"Save && quit"_s);
    EXPECT_TRUE(answers_.empty()) << "the call does not wait for the answer";
}

TEST_F(AlertBoxTest, AnswersOnceWithThePlaceOfTheChosenButton)
{
    const QStringList buttons{u"First"_s, u"Second"_s, u"Third"_s};
    for (const QString& title : buttons) {
        const auto choices = present(buttons)->findChildren<QPushButton*>();
        for (QPushButton* button : choices)
            if (button->text() == title)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    EXPECT_EQ(answers_, (std::vector{1000, 1001, 1002}));
}

TEST_F(AlertBoxTest, TakesReturnForTheFirstButtonAndEscapeOrClosingForTheLast)
{
    const QStringList buttons{u"Open"_s, u"Later"_s, u"Cancel"_s};
    QTest::keyClick(present(buttons), Qt::Key_Return);
    QTest::keyClick(present(buttons), Qt::Key_Escape);
    present(buttons)->close();
    QTest::keyClick(present({u"OK"_s}), Qt::Key_Escape);
    EXPECT_EQ(answers_, (std::vector{1000, 1002, 1002, 1000}));
}

TEST_F(AlertBoxTest, ClosesUnansweredWithItsPresenter)
{
    present({u"OK"_s});
    alerts_.reset();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(answers_.empty());
}

} // namespace
} // namespace quillon
