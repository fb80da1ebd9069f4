#include "BackupOutput.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

bool BackupOutput::readLine(const QByteArray& line)
{
    // Verbosity 2 is wanted for the one message that tells the end of the scan; it brings a line for every file.
    if (line.startsWith(R"({"message_type":"verbose_status")"))
        return false;
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    const QString type = message.value("message_type"_L1).toString();
    if (type == "summary"_L1) {
        snapshotId_ = message.value("snapshot_id"_L1).toString();
        const auto bytes = message.value("total_bytes_processed"_L1).toInteger();
        const auto files = message.value("total_files_processed"_L1).toInteger();
        progress_ =
            BackupProgress{.fraction = 1.0, .bytes = bytes, .totalBytes = bytes, .files = files, .totalFiles = files};
        return true;
    }
    if (type != "status"_L1)
        return false;
    if (message.value("action"_L1).toString() == "scan_finished"_L1) {
        scanEnded_ = true;
        return false;
    }

    BackupProgress now{.bytes = message.value("bytes_done"_L1).toInteger(),
                       .totalBytes = message.value("total_bytes"_L1).toInteger(),
                       .files = message.value("files_done"_L1).toInteger(),
                       .totalFiles = message.value("total_files"_L1).toInteger()};
    if (now.bytes == 0 && now.files == 0)
        return false;
    if (scanEnded_) {
        // Files that grow while they are read make more done than was found.
        now.fraction = std::clamp(message.value("percent_done"_L1).toDouble(), 0.0, 1.0);
        if (const auto seconds = message.value("seconds_remaining"_L1).toInteger(); seconds > 0)
            now.secondsRemaining = seconds;
    }
    progress_ = now;
    return true;
}

void BackupOutput::readMessage(const QByteArray& line)
{
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    // What the scan could not read is met again by the archiver.
    if (message.value("message_type"_L1).toString() == "error"_L1 &&
        message.value("during"_L1).toString() == "archival"_L1)
        ++unreadFiles_;
}

} // namespace quillon
