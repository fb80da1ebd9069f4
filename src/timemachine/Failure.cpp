#include "Failure.h"

namespace quillon {

Failure::Failure(ExitStatus status, QString message)
    : status_(status)
    , message_(std::move(message))
    , text_(message_.toUtf8())
{
}

} // namespace quillon
