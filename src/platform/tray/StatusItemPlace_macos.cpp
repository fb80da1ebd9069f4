#include "StatusItemPlace.h"

namespace quillon {

using namespace Qt::StringLiterals;

StatusItemPlace findStatusItemPlace()
{
    return {u"menu bar"_s, u"macOS always has one"_s};
}

} // namespace quillon
