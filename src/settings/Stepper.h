#pragma once

#include <QSpinBox>
#include <QStyleOptionSpinBox>

namespace quillon {

/// The two arrows of a spin box without its text field, for a value that another control shows. Main thread only.
class Stepper final : public QSpinBox {
    Q_OBJECT

public:
    explicit Stepper(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStyleOptionSpinBox wholeSpinBox() const;
};

} // namespace quillon
