#pragma once

#include <QTextEdit>

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

} // namespace quillon
