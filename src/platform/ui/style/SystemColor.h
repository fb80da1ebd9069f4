#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QWidget>

namespace quillon {

/// How well one colour stands out from the other, from 1 to 21 (WCAG 2.1, "contrast ratio"): text needs 4.5, lines 3.
double contrast(const QColor& one, const QColor& other);

/// Whether a palette shows light text on a dark ground.
bool isDark(const QPalette& palette);

/// Blue for headings and for the ring around what has the keyboard, with at least 4.5:1 contrast to the ground of the
/// palette (WCAG 2.1, 1.4.3 and 1.4.11).
QColor systemBlueColor(const QPalette& palette);

/// A faint line between two groups of controls.
class Divider final : public QWidget {
public:
    explicit Divider(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The font with colour emoji: Qt 6.4 prefers any font that has a glyph to the one that has it in colour.
QFont withColorEmoji(QFont font);

} // namespace quillon
