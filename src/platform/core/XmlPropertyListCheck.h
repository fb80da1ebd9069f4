#pragma once

#include "PropertyList.h"

namespace quillon {

/// Whether the bytes are well-formed XML whose elements nest no deeper than the limit and whose numbers, dates and data
/// are written as property lists write them. libplist takes more than that, and guesses.
bool checkXmlPropertyList(const QByteArray& bytes, propertylist::ParseError& error);

} // namespace quillon
