#pragma once

class QWidget;

namespace quillon {

/// Brings the window that blocks all others, and waits for an answer, to the front; false where there is none.
bool bringModalWindowToFront();

/// Lets clicks on a window through although a modal one blocks it. It is called when the window is told that it is
/// blocked, and makes the clicks the window's business: who clicks is to be shown what waits.
void letClicksThrough(QWidget& window);

} // namespace quillon
