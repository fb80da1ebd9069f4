#pragma once

#include "ExitStatus.h"

#include <QString>

#include <exception>
#include <utility>

namespace quillon {

/// Why a command or a backup ends: one line for people, the exit status for scripts and, where a backup can fail of it,
/// the word under which its cause stands in the status, such as "NoSpace".
class Failure final : public std::exception {
public:
    Failure(ExitStatus status, QString message, QString cause = {})
        : status_(status)
        , message_(std::move(message))
        , cause_(std::move(cause))
        , text_(message_.toUtf8())
    {
    }

    ExitStatus status() const { return status_; }
    const QString& message() const { return message_; }
    const QString& cause() const { return cause_; }
    const char* what() const noexcept override { return text_.constData(); }

private:
    ExitStatus status_;
    QString message_;
    QString cause_;
    QByteArray text_;
};

} // namespace quillon
