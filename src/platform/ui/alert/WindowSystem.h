#pragma once

class QWidget;

namespace quillon {

/// Whether what lies under a window shines through where the window is transparent; black shows there otherwise. May
/// change while the program runs.
bool windowsAreTranslucent();

/// Whether a window's opacity has an effect.
bool windowsFade();

/// Whether a program decides where its windows lie.
bool windowsCanBePlaced();

/// Opens a shown window anew where that is the only way to bring it to the front: Wayland lets no program raise a
/// window or bring one back that the user has put away, but shows new ones. Does nothing elsewhere, nor to the active
/// window.
void openAnew(QWidget& window);

/// Keeps a window that is about to be shown out of what lists windows: task bars, pagers.
void keepOutOfWindowLists(QWidget& window);

/// Brings the application and its window, which is shown or was put away by the user, to the front and gives the window
/// the keyboard.
void bringToFront(QWidget& window);

} // namespace quillon
