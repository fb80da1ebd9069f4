#pragma once

#include <QAccessible>

class QWidget;

namespace quillon {

/// Tells assistive technology what a widget is, where its class alone does not: Qt takes a window for a filler and a
/// paragraph that can be selected for a field to write in. A StaticText is one whole, which its accessible name says.
/// The first call comes before all else in the widget's constructor, for Qt asks once; later ones change the answer.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

} // namespace quillon
