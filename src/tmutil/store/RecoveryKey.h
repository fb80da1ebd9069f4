#pragma once

#include <QString>

namespace quillon {

/// A new key for people to write down: six groups of five characters, "8K2VT-…", 140 random bits and a check sum. None
/// of the characters is easily taken for another.
QString makeRecoveryKey();

/// What a person has typed, as makeRecoveryKey() wrote it: case, blanks and dashes don't count, and O, I and L stand
/// for 0 and 1. Empty where it is no such key, or not without a mistake.
QString recoveryKeyFrom(const QString& typed);

} // namespace quillon
