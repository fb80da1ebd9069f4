#include "CommandLine.h"

#include "Failure.h"
#include "NetworkPlace.h"

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

constexpr auto kibibytes = "KiB a second"_L1;
constexpr qsizetype any = std::numeric_limits<qsizetype>::max();

constexpr std::array syntaxes{
    Syntax{"status"_L1, Command::Status, ""_L1, ""_L1, 0, 0},
    Syntax{"destinationinfo"_L1, Command::DestinationInfo, "X"_L1, "[-X]"_L1, 0, 0},
    Syntax{"setdestination"_L1, Command::SetDestination, "aCFULTX"_L1,
           "[-a | --try] [-X] [--credentials FILE] [--accept-host-key FINGERPRINT] [--upload-limit KIB] "
           "[--download-limit KIB] PATH | URL"_L1,
           1, 1},
    Syntax{"removedestination"_L1, Command::RemoveDestination, ""_L1, "ID"_L1, 1, 1},
    Syntax{"startbackup"_L1, Command::StartBackup, "bdr"_L1, "[-b | --block] [-d ID | -r | --rotation]"_L1, 0, 0},
    Syntax{"stopbackup"_L1, Command::StopBackup, ""_L1, ""_L1, 0, 0},
    Syntax{"latestbackup"_L1, Command::LatestBackup, ""_L1, ""_L1, 0, 0},
    Syntax{"listbackups"_L1, Command::ListBackups, "X"_L1, "[-X]"_L1, 0, 0},
    Syntax{"listfiles"_L1, Command::ListFiles, "RJ"_L1, "[-r] [--json] BACKUP[PATH]"_L1, 1, 1},
    Syntax{"findfiles"_L1, Command::FindFiles, "JN"_L1, "[--json] [-b BACKUP] PATTERN..."_L1, 1, any},
    Syntax{"versions"_L1, Command::Versions, "J"_L1, "[--json] PATH"_L1, 1, 1},
    Syntax{"restore"_L1, Command::Restore, "JBPSI"_L1,
           "[--json] [--keep-both | --replace | --skip] [--in-place] SRC... [DST]"_L1, 1, any},
    Syntax{"addsource"_L1, Command::AddSource, ""_L1, "PATH"_L1, 1, 1},
    Syntax{"removesource"_L1, Command::RemoveSource, ""_L1, "PATH"_L1, 1, 1},
    Syntax{"listsources"_L1, Command::ListSources, "X"_L1, "[-X]"_L1, 0, 0},
    Syntax{"addexclusion"_L1, Command::AddExclusion, ""_L1, "PATH..."_L1, 1, any},
    Syntax{"removeexclusion"_L1, Command::RemoveExclusion, ""_L1, "PATH..."_L1, 1, any},
    Syntax{"listexclusions"_L1, Command::ListExclusions, "Xa"_L1, "[-X | -a]"_L1, 0, 0},
    Syntax{"isexcluded"_L1, Command::IsExcluded, ""_L1, "PATH..."_L1, 1, any},
    Syntax{"verify"_L1, Command::Verify, "dA"_L1, "[-d ID] [--all]"_L1, 0, 0},
    Syntax{"recoverykey"_L1, Command::RecoveryKey, "XKd"_L1, "[-X | --kept KEYID] [-d ID]"_L1, 0, 0},
    Syntax{"adopt"_L1, Command::Adopt, "CF"_L1, "[--credentials FILE] [--accept-host-key FINGERPRINT] PATH | URL"_L1, 1,
           1},
    Syntax{"deletebackup"_L1, Command::DeleteBackup, ""_L1, "NAME..."_L1, 1, any},
    Syntax{"log"_L1, Command::Log, ""_L1, "[NAME]"_L1, 0, 1},
    Syntax{"listunread"_L1, Command::ListUnread, "X"_L1, "[-X] [NAME]"_L1, 0, 1},
    Syntax{"retention"_L1, Command::Retention, "HDW"_L1, "[--hourly N] [--daily N] [--weekly N]"_L1, 0, 0},
    Syntax{"excludename"_L1, Command::ExcludeName, "TX"_L1, "[--try [-X]] PATTERN..."_L1, 1, any},
    Syntax{"includename"_L1, Command::IncludeName, ""_L1, "PATTERN..."_L1, 1, any},
    Syntax{"excludelarger"_L1, Command::ExcludeLarger, "TX"_L1, "[--try [-X]] MEGABYTES"_L1, 1, 1},
    Syntax{"diskusage"_L1, Command::DiskUsage, "X"_L1, "[-X]"_L1, 0, 0},
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
    static constexpr std::array spellings{std::pair{"--block"_L1, 'b'},
                                          std::pair{"--rotation"_L1, 'r'},
                                          std::pair{"--all"_L1, 'A'},
                                          std::pair{"--hourly"_L1, 'H'},
                                          std::pair{"--daily"_L1, 'D'},
                                          std::pair{"--weekly"_L1, 'W'},
                                          std::pair{"--try"_L1, 'T'},
                                          std::pair{"--kept"_L1, 'K'},
                                          std::pair{"--json"_L1, 'J'},
                                          std::pair{"--keep-both"_L1, 'B'},
                                          std::pair{"--replace"_L1, 'P'},
                                          std::pair{"--skip"_L1, 'S'},
                                          std::pair{"--in-place"_L1, 'I'},
                                          std::pair{"--credentials"_L1, 'C'},
                                          std::pair{"--accept-host-key"_L1, 'F'},
                                          std::pair{"--upload-limit"_L1, 'U'},
                                          std::pair{"--download-limit"_L1, 'L'}};
    // Capital letters but X stand for what is spelled out only.
    char letter =
        argument.size() == 2 && (argument == "-X"_L1 || !argument[1].isUpper()) ? argument[1].toLatin1() : '\0';
    for (const auto& [spelling, meaning] : spellings) {
        if (argument == spelling)
            letter = meaning;
    }
    // These letters mean something else where they are not spelled out: down the folders, in one backup.
    for (const auto& [usual, own] : {std::pair{'r', 'R'}, std::pair{'b', 'N'}}) {
        if (letter == usual && syntax.options.contains(QLatin1Char(own)))
            letter = argument.size() == 2 ? own : '\0';
    }
    if (letter == '\0' || !syntax.options.contains(QLatin1Char(letter)))
        refuse(u"\"%1\" takes no option \"%2\"."_s.arg(syntax.name, argument));
    return letter;
}

/// The number that follows an option, which is stepped over.
int numberAfter(QStringList::const_iterator& option, QStringList::const_iterator end, int most = 10000,
                QLatin1StringView unit = "backups"_L1)
{
    bool isNumber = false;
    const QString name = *option;
    const int number = ++option != end ? option->toInt(&isNumber) : 0;
    if (!isNumber || number < 0 || number > most)
        refuse(u"\"%1\" wants a number of %2, up to %3."_s.arg(name, unit).arg(most));
    return number;
}

/// The word that follows an option, which is stepped over.
QString wordAfter(QStringList::const_iterator& option, QStringList::const_iterator end,
                  QLatin1StringView what = "an identifier"_L1)
{
    const QString name = *option;
    if (++option == end || option->isEmpty())
        refuse(u"\"%1\" wants %2."_s.arg(name, what));
    return *option;
}

/// Whether there is an option that makes sense for a network place alone, and none is named.
bool asksTooMuchOfDisk(const CommandLine& line, const Syntax& syntax)
{
    const bool isAsked = !line.credentials.isEmpty() || !line.hostKey.isEmpty() || line.uploadLimit >= 0 ||
                         line.downloadLimit >= 0 ||
                         ((line.trial || line.xml) && syntax.command == Command::SetDestination);
    return isAsked && !NetworkPlace::isUrl(line.operands.value(0));
}

/// One at most: two would contradict each other.
void chooseRule(CommandLine& line, const QString& option)
{
    if (line.rule != RestoreRule::Refuse)
        refuse(u"\"%1\" goes with no other rule."_s.arg(option));
    line.rule = option == "--replace"_L1 ? RestoreRule::Replace
                : option == "--skip"_L1  ? RestoreRule::Skip
                                         : RestoreRule::KeepBoth;
}

/// Without a rule one thing is restored under a name of its own; with one, any number into a folder.
bool isRestoreWhole(const CommandLine& line)
{
    const qsizetype operands = line.operands.size();
    return line.inPlace || (line.rule == RestoreRule::Refuse ? operands == 2 : operands >= 2);
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
    for (auto argument = arguments.cbegin() + 1; argument != arguments.cend(); ++argument) {
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
        case 'B':
        case 'P':
        case 'S':
            chooseRule(line, *argument);
            break;
        case 'I':
            line.inPlace = true;
            break;
        case 'R':
            line.recursive = true;
            break;
        case 'J':
            line.json = true;
            break;
        case 'A':
            line.all = true;
            break;
        case 'T':
            line.trial = true;
            break;
        case 'H':
            line.keep.hourly = numberAfter(argument, arguments.cend());
            break;
        case 'D':
            line.keep.daily = numberAfter(argument, arguments.cend());
            break;
        case 'W':
            line.keep.weekly = numberAfter(argument, arguments.cend());
            break;
        case 'C':
            line.credentials = wordAfter(argument, arguments.cend(), "a file"_L1);
            break;
        case 'F':
            line.hostKey = wordAfter(argument, arguments.cend(), "a fingerprint"_L1);
            break;
        case 'U':
            line.uploadLimit = numberAfter(argument, arguments.cend(), NetworkAccess::mostLimit, kibibytes);
            break;
        case 'L':
            line.downloadLimit = numberAfter(argument, arguments.cend(), NetworkAccess::mostLimit, kibibytes);
            break;
        case 'd':
            line.destination = wordAfter(argument, arguments.cend());
            break;
        case 'N':
            line.backup = wordAfter(argument, arguments.cend());
            break;
        case 'K':
            line.keptKey = wordAfter(argument, arguments.cend());
            break;
        }
    }
    if (line.operands.size() < syntax.leastOperands || line.operands.size() > syntax.mostOperands ||
        line.operands.contains(QString()) || (line.command == Command::Restore && !isRestoreWhole(line)) ||
        (line.rotate && !line.destination.isEmpty()) || asksTooMuchOfDisk(line, syntax) ||
        (line.append && line.trial) ||
        (line.xml && (!line.keptKey.isEmpty() ||
                      (syntax.options.contains(u'T') && !line.trial && line.command != Command::SetDestination))))
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
