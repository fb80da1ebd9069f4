#pragma once

#include "RoundButton.h"

namespace quillon {

/// A round red button with a minus sign, which removes what it stands beside. Main thread only.
class DeleteButton final : public RoundButton {
    Q_OBJECT

public:
    explicit DeleteButton(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
