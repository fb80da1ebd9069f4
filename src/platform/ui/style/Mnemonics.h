#pragma once

#include <QList>
#include <QStringList>

class QAbstractButton;

namespace quillon {

/// The titles with a different letter of each marked as its mnemonic: the first letter of a word where one is free, any
/// other letter otherwise. A title without a free letter of the basic Latin alphabet gets one in brackets behind it, as
/// desktops do in Chinese and Japanese.
QStringList titlesWithMnemonics(const QStringList& titles);

/// Marks the mnemonics of buttons of one panel, which show their plain titles, where the platform has mnemonics.
void assignMnemonics(const QList<QAbstractButton*>& buttons);

} // namespace quillon
