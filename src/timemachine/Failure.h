#pragma once

#include "ExitStatus.h"

#include <QString>

#include <exception>

namespace quillon {

/// Why a command ends: one line for people and the exit status for scripts.
class Failure final : public std::exception {
public:
    Failure(ExitStatus status, QString message);

    ExitStatus status() const { return status_; }
    const QString& message() const { return message_; }
    const char* what() const noexcept override { return text_.constData(); }

private:
    ExitStatus status_;
    QString message_;
    QByteArray text_;
};

} // namespace quillon
