#pragma once

#include "RoundButton.h"

namespace quillon {

/// A round button with a question mark that explains what it stands beside. Main thread only.
class HelpButton final : public RoundButton {
    Q_OBJECT

public:
    explicit HelpButton(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
