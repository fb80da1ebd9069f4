#pragma once

#include "StartRequest.h"
#include "StatusItem.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

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
