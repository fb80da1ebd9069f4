#pragma once

#include "Services.h"

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QTextEdit>
#include <QWidget>

#include <deque>
#include <memory>

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

/// Brings the window that blocks all others, and waits for an answer, to the front; false where there is none.
bool bringModalWindowToFront();

/// Lets clicks on a window through although a modal one blocks it. It is called when the window is told that it is
/// blocked, and makes the clicks the window's business: who clicks is to be shown what waits.
void letClicksThrough(QWidget& window);

/// An alert in a window of its own. Closing the window stands for the button that Escape presses; the
/// program's end answers nothing.
class AlertWindow final : public QDialog {
    Q_OBJECT

public:
    explicit AlertWindow(const AlertRequest& request);

    /// Shows it application-modally and returns at once; `answer` gets the response code once the window is closed.
    void beginModal(std::function<void(int response)> answer);

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Alert* alert_;
};

/// Shows alerts in windows, one at a time in the order in which they come: of two windows that block each other's input
/// one could hide the other. The keyboard goes back to the window that had it before. Those open or waiting when this
/// goes away are never answered.
class ModalAlertPresenter final : public AlertPresenter {
public:
    void present(const AlertRequest& request, std::function<void(int response)> answer) override;

private:
    struct Presented {
        AlertRequest request;
        std::function<void(int response)> answer;
    };

    void showFirst();
    void finish(int response);

    std::deque<Presented> alerts_; ///< the first one is open
    std::unique_ptr<AlertWindow> window_;
    QPointer<QWidget> keyboardOwner_; ///< before the first one came
};

} // namespace quillon
