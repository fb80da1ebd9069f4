#pragma once

#include "AlertPresenter.h"

#include <QList>
#include <QTextEdit>
#include <QWidget>

class QPainter;
class QAbstractButton;
class QHBoxLayout;
class QPushButton;

namespace quillon {

/// A paragraph of an alert: plain text that can be selected and copied, wrapped even inside of long words, as large as
/// it has to be. What is higher than most of the screen scrolls.
class AlertText final : public QTextEdit {
    Q_OBJECT

public:
    AlertText(const QString& text, bool bold, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fitToText();
    void takeWindowColor();
};

/// Draws the sign of an alert's style: an i in a circle, an exclamation mark in a triangle or an octagon.
void paintAlertSign(QPainter& painter, const QRectF& area, AlertStyle alertStyle);

/// The sign beside an alert's text, sharp at every scale.
class AlertIcon final : public QWidget {
    Q_OBJECT

public:
    AlertIcon(AlertStyle alertStyle, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const AlertStyle alertStyle_;
};

/// What an alert shows: an icon, a bold message, a text below it and the buttons. Return presses the button that has
/// the keyboard, which is the first one to begin with; Escape presses the one that leaves things as they are. It stands
/// in a window of its own or in a popover, whose business it is what a click on a button does.
class Alert final : public QWidget {
    Q_OBJECT

public:
    explicit Alert(const AlertRequest& request, QWidget* parent = nullptr);

    /// In the order of the request, at least one.
    const QList<QPushButton*>& buttons() const { return buttons_; }
    QPushButton* escapeButton() const { return escapeButton_; }
    /// alertFirstButtonReturn for the first of the buttons, counting up from there.
    int responseOf(const QAbstractButton* button) const;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addButtons(const AlertRequest& request, QHBoxLayout& row);
    void tintDestructiveButton();

    QList<QPushButton*> buttons_;
    QPushButton* escapeButton_ = nullptr;
    QPushButton* destructiveButton_ = nullptr;
};

} // namespace quillon
