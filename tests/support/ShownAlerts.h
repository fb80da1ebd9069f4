#pragma once

#include "EventLoop.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace quillon {

/// The alert popover on the screen that has a button of that title; nothing when there is none.
inline QPushButton* alertButton(const QString& title)
{
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (!window->isVisible() || !window->findChild<QWidget*>(QStringLiteral("informativeText")))
            continue;
        const auto buttons = window->findChildren<QPushButton*>();
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
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        const auto* text =
            window->isVisible() ? window->findChild<QTextEdit*>(QStringLiteral("informativeText")) : nullptr;
        if (text)
            return text->toPlainText();
    }
    return {};
}

/// Waits for an alert with that button and clicks it.
inline void answerAlert(const QString& title)
{
    ASSERT_TRUE(runUntil([&] { return alertButton(title); })) << title.toStdString();
    QTest::mouseClick(alertButton(title), Qt::LeftButton);
    EXPECT_TRUE(runUntil([&] { return !alertButton(title); }));
}

} // namespace quillon
