#pragma once

#include "EventLoop.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace quillon {

/// The texts of the alert popovers on the screen, below their titles.
inline QList<QTextEdit*> shownAlertTexts()
{
    QList<QTextEdit*> texts;
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->isVisible())
            texts += window->findChildren<QTextEdit*>(QStringLiteral("informativeText"));
    }
    return texts;
}

/// The alert popover on the screen that has a button of that title; nothing when there is none.
inline QPushButton* alertButton(const QString& title)
{
    for (const QTextEdit* text : shownAlertTexts()) {
        const auto buttons = text->window()->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->accessibleName() == title)
                return button;
        }
    }
    return nullptr;
}

/// What the alert popover on the screen says below its title; nothing when there is none.
inline QString shownAlertText()
{
    const auto texts = shownAlertTexts();
    return texts.isEmpty() ? QString() : texts.first()->toPlainText();
}

/// Waits for an alert with that button and clicks it.
inline void answerAlert(const QString& title)
{
    ASSERT_TRUE(runUntil([&] { return alertButton(title); })) << title.toStdString();
    QTest::mouseClick(alertButton(title), Qt::LeftButton);
    EXPECT_TRUE(runUntil([&] { return !alertButton(title); }));
}

} // namespace quillon
