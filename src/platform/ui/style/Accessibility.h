#pragma once

#include <QAccessible>
#include <QList>
#include <QStringList>

class QWidget;
class QAbstractButton;

namespace quillon {

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
