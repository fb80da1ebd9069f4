#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace quillon {

/// What a scripted tmutil expects and answers, read from data.
///
/// JSON: an array of calls { "expect": [words], "output": text, "status": exit status, "delay": seconds, "fault": one
/// of Fault's names }.
struct TmutilScript {
    enum class Fault {
        None,
        Hang,    ///< never ends by itself
        Crash,   ///< ended by a signal
        Half,    ///< ends well, in the middle of its output
        Endless, ///< prints without end
        NotUtf8, ///< prints bytes that are no UTF-8
        Refused, ///< cannot be launched
    };

    struct Call {
        QStringList expected;
        QByteArray output;
        int status = 0;
        double delay = 0;
        Fault fault = Fault::None;
    };

    QList<Call> calls;

    /// Throws std::runtime_error when the text is not such a script.
    static TmutilScript fromJson(const QByteArray& json);
};

} // namespace quillon
