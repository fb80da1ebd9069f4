#pragma once

#include "Services.h"

#include <QAbstractButton>

namespace quillon {

/// A button that is a disc as high as a line of text and `verticalPadding` logical pixels above and below it. The
/// keyboard reaches it, and clicks in its corners miss it.
class RoundButton : public QAbstractButton {
    Q_OBJECT

public:
    QSize sizeHint() const override;

protected:
    RoundButton(int verticalPadding, QWidget* parent);

    bool hitButton(const QPoint& position) const override;

private:
    const int verticalPadding_;
};

/// A round button with a question mark that explains what it stands beside.
class HelpButton final : public RoundButton {
    Q_OBJECT

public:
    explicit HelpButton(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

/// A round red button with a minus sign, which removes what it stands beside.
class DeleteButton final : public RoundButton {
    Q_OBJECT

public:
    explicit DeleteButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A button that shows the sign of the alert that it brings up, a little higher than a line of text.
class SignButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit SignButton(QWidget* parent = nullptr);

    /// The default is Warning.
    void setAlertStyle(AlertStyle alertStyle);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AlertStyle alertStyle_ = AlertStyle::Warning;
};

/// A faint line between two groups of controls.
class Divider final : public QWidget {
public:
    explicit Divider(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
