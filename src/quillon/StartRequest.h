#pragma once

#include <QByteArrayList>

#include <optional>

namespace quillon {

class StatusMenuController;

/// What a start of the program is for; a desktop offers the last three beside the program's icon.
enum class StartRequest { Present, BackUpNow, PauseForAnHour, Settings };

/// The request of that name, which is an option on the command line without its dashes.
std::optional<StartRequest> startRequestNamed(const QByteArray& name);

QByteArray nameOf(StartRequest request);

/// The names of the last three.
QByteArrayList startRequestNames();

/// Does what the menu's item of that name does. An alert that waits for an answer comes to the front instead.
void carryOut(StartRequest request, StatusMenuController& controller);

} // namespace quillon
