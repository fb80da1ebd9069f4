#pragma once

#include <QString>

namespace quillon {

/// Posts to the desktop what the program tells the user unasked, and pictures how the desktop draws it, into files of
/// that folder whose names begin with the colour scheme. Takes the screen to be empty otherwise. Nothing but the first
/// that failed is said: an empty text where all went well.
QString pictureNotifications(const QString& folder, const QString& scheme);

} // namespace quillon
