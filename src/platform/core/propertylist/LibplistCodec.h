#pragma once

#include "PropertyList.h"

namespace quillon {

/// Whether the containers of a binary property list can be read out in bounded memory and depth. Its objects refer to
/// each other by number, so a few bytes can name a list without end.
bool checkBinaryPropertyList(const QByteArray& bytes, propertylist::ParseError& error);

} // namespace quillon

/// The binary format, by libplist. What that library would crash on, expand without end or read as something else is
/// refused before it gets there.
namespace quillon::libplist {

/// A date that libplist cannot tell is left out of the array or dictionary that it stands in.
std::optional<QVariant> readBinary(const QByteArray& bytes, propertylist::ParseError& error);

/// Nothing for a value that the format cannot hold.
std::optional<QByteArray> writeBinary(const QVariant& value);

} // namespace quillon::libplist
