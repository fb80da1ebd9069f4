#pragma once

#include "PropertyList.h"

namespace quillon {

/// Whether the containers of a binary property list can be read out in bounded memory and depth. Its objects refer to
/// each other by number, so a few bytes can name a list without end.
bool checkBinaryPropertyList(const QByteArray& bytes, propertylist::ParseError& error);

} // namespace quillon
