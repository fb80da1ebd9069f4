#pragma once

#include "StatusItem.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

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

/// What the application was started with.
struct Options {
    bool help = false;
    bool version = false;
    bool printChanges = false; ///< a line on standard output for each change of the menu-bar item
    StartRequest request = StartRequest::Present;
    StatusItemPlacement placement = StatusItemPlacement::Automatic;

    /// Reads the words behind the program's name; nothing, with one clear line in `error`, when one is unknown.
    static std::optional<Options> parse(const QStringList& words, QString* error);

    static QString helpText();
};

} // namespace quillon
