#include "ScopedEnvironment.h"

#include <QtGlobal>

#include <ctime>

namespace quillon {

ScopedEnvironment::ScopedEnvironment(const char* name, std::optional<QByteArray> value)
    : name_(name)
{
    if (qEnvironmentVariableIsSet(name))
        previous_ = qgetenv(name);
    apply(name, value);
}

ScopedEnvironment::~ScopedEnvironment()
{
    apply(name_, previous_);
}

void ScopedEnvironment::apply(const char* name, const std::optional<QByteArray>& value)
{
    if (value)
        qputenv(name, *value);
    else
        qunsetenv(name);
    tzset();
}

} // namespace quillon
