#include "Arguments.h"

#include "ControlRequest.h"
#include "PrintedDates.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostDates = 1000;
constexpr int usualStarts = 20;

std::optional<Arguments::Command> readCommand(const QString& word)
{
    using Command = Arguments::Command;
    if (word == "status"_L1)
        return Command::Status;
    if (word == "destinations"_L1)
        return Command::Destinations;
    if (word == "next"_L1)
        return Command::Next;
    if (word == "history"_L1)
        return Command::History;
    if (word == "doctor"_L1)
        return Command::Doctor;
    if (word == "--help"_L1 || word == "-h"_L1)
        return Command::Help;
    if (word == "--version"_L1)
        return Command::Version;
    return std::nullopt;
}

/// Reads the option at words[i] and its value; what is wrong with it, or the empty text.
QString readOption(const QStringList& words, qsizetype& i, Arguments& arguments)
{
    const QString& word = words[i];
    const bool ofNext = arguments.command == Arguments::Command::Next;
    const bool counts = ofNext || arguments.command == Arguments::Command::History;
    const bool answers =
        arguments.command != Arguments::Command::Help && arguments.command != Arguments::Command::Version;
    if (word == "--json"_L1 && answers) {
        arguments.json = true;
        return {};
    }
    if ((word != "--count"_L1 || !counts) && (word != "--from"_L1 || !ofNext))
        return u"unexpected argument \"%1\""_s.arg(word);
    if (++i == words.size())
        return u"%1 needs a value"_s.arg(word);
    if (word == "--from"_L1) {
        arguments.from = readLocalDateTime(words[i]);
        return arguments.from
                   ? QString()
                   : u"--from takes a local date and time such as 2026-11-21T12:00, not \"%1\""_s.arg(words[i]);
    }
    bool isNumber = false;
    arguments.count = words[i].toInt(&isNumber);
    return isNumber && arguments.count >= 1 && arguments.count <= mostDates
               ? QString()
               : u"--count takes a number from 1 to %1, not \"%2\""_s.arg(QString::number(mostDates), words[i]);
}

std::optional<Arguments> readRequest(QStringList words, QString* error)
{
    Arguments arguments;
    arguments.command = Arguments::Command::OfRunning;
    arguments.json = words.removeAll(u"--json"_s) > 0;
    arguments.request = words;
    return ControlRequest::parse(words, error) ? std::optional(arguments) : std::nullopt;
}

} // namespace

std::optional<Arguments> Arguments::parse(const QStringList& words, QString* error)
{
    if (words.isEmpty()) {
        *error = u"a command is missing; --help lists them"_s;
        return std::nullopt;
    }
    if (ControlRequest::isMeant(words))
        return readRequest(words, error);
    const auto command = readCommand(words.first());
    if (!command) {
        *error = u"unknown command \"%1\"; --help lists them"_s.arg(words.first());
        return std::nullopt;
    }
    Arguments arguments;
    arguments.command = *command;
    if (*command == Command::History)
        arguments.count = usualStarts;
    for (qsizetype i = 1; i < words.size(); ++i) {
        *error = readOption(words, i, arguments);
        if (!error->isEmpty())
            return std::nullopt;
    }
    return arguments;
}

} // namespace quillon
