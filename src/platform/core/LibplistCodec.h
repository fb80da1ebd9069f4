#pragma once

#include "PropertyList.h"

/// The XML and binary formats, by libplist. What that library would crash on, expand without end or read as something
/// else is refused before it gets there.
namespace quillon::libplist {

std::optional<QVariant> readXml(const QByteArray& bytes, propertylist::ParseError& error);
std::optional<QVariant> readBinary(const QByteArray& bytes, propertylist::ParseError& error);

/// Both give nothing for a value that the format cannot hold.
std::optional<QByteArray> writeXml(const QVariant& value);
std::optional<QByteArray> writeBinary(const QVariant& value);

} // namespace quillon::libplist
