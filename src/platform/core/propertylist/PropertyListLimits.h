#pragma once

namespace quillon::propertylist {

/// Arrays and dictionaries inside one another, at most: far more than real lists have, few enough for any stack.
inline constexpr int maximumNesting = 512;

} // namespace quillon::propertylist
