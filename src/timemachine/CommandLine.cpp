#include "CommandLine.h"

#include "Failure.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

struct Syntax {
    QLatin1StringView name;
    Command command;
    QLatin1StringView options; ///< the letters taken
    QLatin1StringView operands;
    qsizetype leastOperands;
    qsizetype mostOperands;
};

constexpr qsizetype any = std::numeric_limits<qsizetype>::max();

constexpr std::array syntaxes{
    Syntax{"status"_L1, Command::Status, ""_L1, ""_L1, 0, 0},
    Syntax{"destinationinfo"_L1, Command::DestinationInfo, "X"_L1, "[-X]"_L1, 0, 0},
    Syntax{"setdestination"_L1, Command::SetDestination, "a"_L1, "[-a] PATH"_L1, 1, 1},
    Syntax{"removedestination"_L1, Command::RemoveDestination, ""_L1, "ID"_L1, 1, 1},
    Syntax{"startbackup"_L1, Command::StartBackup, "bdr"_L1, "[-b | --block] [-d ID | -r | --rotation]"_L1, 0, 0},
    Syntax{"stopbackup"_L1, Command::StopBackup, ""_L1, ""_L1, 0, 0},
    Syntax{"latestbackup"_L1, Command::LatestBackup, ""_L1, ""_L1, 0, 0},
    Syntax{"listbackups"_L1, Command::ListBackups, ""_L1, ""_L1, 0, 0},
    Syntax{"restore"_L1, Command::Restore, ""_L1, "SRC DST"_L1, 2, 2},
    Syntax{"addsource"_L1, Command::AddSource, ""_L1, "PATH"_L1, 1, 1},
    Syntax{"removesource"_L1, Command::RemoveSource, ""_L1, "PATH"_L1, 1, 1},
    Syntax{"listsources"_L1, Command::ListSources, "X"_L1, "[-X]"_L1, 0, 0},
    Syntax{"addexclusion"_L1, Command::AddExclusion, ""_L1, "PATH..."_L1, 1, any},
    Syntax{"removeexclusion"_L1, Command::RemoveExclusion, ""_L1, "PATH..."_L1, 1, any},
    Syntax{"listexclusions"_L1, Command::ListExclusions, "X"_L1, "[-X]"_L1, 0, 0},
    Syntax{"isexcluded"_L1, Command::IsExcluded, ""_L1, "PATH..."_L1, 1, any},
    Syntax{"runbackup"_L1, Command::RunBackup, "d"_L1, ""_L1, 0, 0},
    Syntax{"help"_L1, Command::Help, ""_L1, ""_L1, 0, 0},
};

[[noreturn]] void refuse(const QString& message)
{
    throw Failure(ExitStatus::Usage, message + u" Try \"tmutil help\"."_s);
}

[[noreturn]] void refuse(const Syntax& syntax)
{
    refuse(u"Usage: tmutil %1 %2"_s.arg(syntax.name, syntax.operands).trimmed() + u'.');
}

const Syntax& syntaxOf(const QString& name)
{
    const auto found = std::ranges::find(syntaxes, name, &Syntax::name);
    if (found == syntaxes.end())
        refuse(u"\"%1\" is not a command."_s.arg(name));
    return *found;
}

/// The letter of an option that the command takes; anything else is refused.
char optionLetter(const QString& argument, const Syntax& syntax)
{
    static constexpr std::array spellings{std::pair{"--block"_L1, 'b'}, std::pair{"--rotation"_L1, 'r'}};
    char letter = argument.size() == 2 ? argument[1].toLatin1() : '\0';
    for (const auto& [spelling, meaning] : spellings) {
        if (argument == spelling)
            letter = meaning;
    }
    if (letter == '\0' || !syntax.options.contains(QLatin1Char(letter)))
        refuse(u"\"%1\" takes no option \"%2\"."_s.arg(syntax.name, argument));
    return letter;
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    if (arguments.isEmpty())
        refuse(u"A command is missing."_s);
    const QString& word = arguments.first();
    const Syntax& syntax = syntaxOf(word == "--help"_L1 || word == "-h"_L1 ? u"help"_s : word);

    CommandLine line;
    line.command = syntax.command;
    bool optionsEnded = false;
    for (auto argument = arguments.begin() + 1; argument != arguments.end(); ++argument) {
        if (optionsEnded || !argument->startsWith(u'-')) {
            line.operands.append(*argument);
            continue;
        }
        if (*argument == "--"_L1) {
            optionsEnded = true;
            continue;
        }
        switch (optionLetter(*argument, syntax)) {
        case 'X':
            line.xml = true;
            break;
        case 'a':
            line.append = true;
            break;
        case 'b':
            line.block = true;
            break;
        case 'r':
            line.rotate = true;
            break;
        case 'd':
            if (++argument == arguments.end() || argument->isEmpty())
                refuse(u"\"-d\" wants the identifier of a backup disk."_s);
            line.destination = *argument;
            break;
        }
    }
    if (line.operands.size() < syntax.leastOperands || line.operands.size() > syntax.mostOperands ||
        line.operands.contains(QString()) || (line.rotate && !line.destination.isEmpty()))
        refuse(syntax);
    return line;
}

QString CommandLine::usage()
{
    QString text = u"Usage:\n"_s;
    for (const Syntax& syntax : syntaxes) {
        if (syntax.command != Command::RunBackup)
            text += "    tmutil "_L1 + u"%1 %2"_s.arg(syntax.name, syntax.operands).trimmed() + u'\n';
    }
    return text;
}

} // namespace quillon
