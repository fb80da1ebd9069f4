#pragma once

#include <QByteArray>

#include <optional>

namespace quillon {

/// Sets or unsets an environment variable for the length of a scope; "TZ" takes effect at once.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, std::optional<QByteArray> value);
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ~ScopedEnvironment();

private:
    static void apply(const char* name, const std::optional<QByteArray>& value);

    const char* name_;
    std::optional<QByteArray> previous_;
};

} // namespace quillon
