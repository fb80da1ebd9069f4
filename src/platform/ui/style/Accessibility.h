#pragma once

#include <QAccessible>
#include <QColor>
#include <QFont>
#include <QList>
#include <QPalette>
#include <QStringList>
#include <QWidget>

class QAbstractButton;

namespace quillon {

/// How well one colour stands out from the other, from 1 to 21 (WCAG 2.1, "contrast ratio"): text needs 4.5, lines 3.
double contrast(const QColor& one, const QColor& other);

/// Whether a palette shows light text on a dark ground.
bool isDark(const QPalette& palette);

/// Blue for headings and for the ring around what has the keyboard, with at least 4.5:1 contrast to the ground of the
/// palette (WCAG 2.1, 1.4.3 and 1.4.11).
QColor systemBlueColor(const QPalette& palette);

/// The font with colour emoji: Qt 6.4 prefers any font that has a glyph to the one that has it in colour.
QFont withColorEmoji(QFont font);

/// Tells assistive technology what a widget is, where its class alone does not: Qt takes a window for a filler and a
/// paragraph that can be selected for a field to write in. A StaticText is one whole, which its accessible name says.
/// The first call comes before all else in the widget's constructor, for Qt asks once; later ones change the answer.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// The titles with a different letter of each marked as its mnemonic: the first letter of a word where one is free, any
/// other letter otherwise. A title without a free letter of the basic Latin alphabet gets one in brackets behind it, as
/// desktops do in Chinese and Japanese.
QStringList titlesWithMnemonics(const QStringList& titles);

/// Marks the mnemonics of buttons of one panel, which show their plain titles, where the platform has mnemonics.
void assignMnemonics(const QList<QAbstractButton*>& buttons);

} // namespace quillon
