#pragma once

#include <QByteArray>

#include <ctime>
#include <optional>

namespace quillon {

/// Sets or unsets an environment variable for the length of a scope; "TZ" takes effect at once.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, const std::optional<QByteArray>& value)
        : name_(name)
    {
        if (qEnvironmentVariableIsSet(name))
            previous_ = qgetenv(name);
        apply(value);
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ~ScopedEnvironment() { apply(previous_); }

private:
    void apply(const std::optional<QByteArray>& value) const
    {
        value ? qputenv(name_, *value) : qunsetenv(name_);
        tzset();
    }

    const char* name_;
    std::optional<QByteArray> previous_;
};

} // namespace quillon
