#include "core/variables/catalogue.h"

#include "core/variables/record.h"

#include <QCoreApplication>
#include <QHash>

#include <iterator>

namespace {

struct KnownVariable
{
    const char *name;
    const char *description;
    bool vip;
};

// Matched in this order; the first equal name wins, so the second LANG entry
// is never reached.
const KnownVariable knownVariables[] = {
    {"HOME",
     QT_TRANSLATE_NOOP("EveModel",
                       "The current user's home directory; the default for the cd built-in. The "
                       "value of this variable is also used by tilde expansion."),
     true},
    {"LOGNAME", QT_TRANSLATE_NOOP("EveModel", "Your logname"), true},
    {"SHELL", QT_TRANSLATE_NOOP("EveModel", "Your shell"), true},
    {"CDPATH",
     QT_TRANSLATE_NOOP("EveModel", "A colon-separated list of directories used as a search path "
                                   "for the cd built-in command."),
     true},
    {"IFS",
     QT_TRANSLATE_NOOP("EveModel", "A list of characters that separate fields; used when the shell "
                                   "splits words as part of expansion."),
     true},
    {"MAIL",
     QT_TRANSLATE_NOOP("EveModel",
                       "If this parameter is set to a file name and the MAILPATH variable is not "
                       "set, Bash informs the user of the arrival of mail in the specified file."),
     true},
    {"MAILPATH",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "A colon-separated list of file names which the shell periodically checks for new mail."),
     true},
    {"OPTARG",
     QT_TRANSLATE_NOOP("EveModel",
                       "The value of the last option argument processed by the getopts built-in."),
     true},
    {"OPTIND",
     QT_TRANSLATE_NOOP("EveModel",
                       "The index of the last option argument processed by the getopts built-in."),
     true},
    {"PATH",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "A colon-separated list of directories in which the shell looks for commands."),
     true},
    {"PS1", QT_TRANSLATE_NOOP("EveModel", "The primary prompt string."), false},
    {"PS2", QT_TRANSLATE_NOOP("EveModel", "The secondary prompt string."), false},
    {"BASH",
     QT_TRANSLATE_NOOP("EveModel",
                       "The full pathname used to execute the current instance of Bash."),
     true},
    {"BASH_ENV",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "If this variable is set when Bash is invoked to execute a shell script, its value is "
         "expanded and used as the name of a startup file to read before executing the script."),
     true},
    {"BASH_VERSION",
     QT_TRANSLATE_NOOP("EveModel", "The version number of the current instance of Bash."), true},
    {"BASH_VERSINFO",
     QT_TRANSLATE_NOOP("EveModel", "A read-only array variable whose members hold version "
                                   "information for this instance of Bash."),
     true},
    {"COLUMNS",
     QT_TRANSLATE_NOOP("EveModel",
                       "Used by the select built-in to determine the terminal width when printing "
                       "selection lists. Automatically set upon receipt of a SIGWINCH signal."),
     true},
    {"COMP_CWORD",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "An index into ${COMP_WORDS} of the word containing the current cursor position."),
     true},
    {"COMP_LINE", QT_TRANSLATE_NOOP("EveModel", "The current command line."), true},
    {"UID", QT_TRANSLATE_NOOP("EveModel", "The numeric, real user ID of the current user."), true},
    {"SHLVL",
     QT_TRANSLATE_NOOP("EveModel",
                       "Incremented by one each time a new instance of Bash is started."),
     true},
    {"SHELLOPTS", QT_TRANSLATE_NOOP("EveModel", "A colon-separated list of enabled shell options."),
     true},
    {"REPLY", QT_TRANSLATE_NOOP("EveModel", "The default variable for the read built-in."), false},
    {"GS_LIB", QT_TRANSLATE_NOOP("EveModel", "GHOSTSCRIPT library."), true},
    {"TIMEFORMAT",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "The value of this parameter is used as a format string specifying how the timing "
         "information for pipelines prefixed with the time reserved word should be displayed."),
     false},
    {"RANDOM",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "Each time this parameter is referenced, a random integer between 0 and 32767 is "
         "generated. Assigning a value to this variable seeds the random number generator."),
     false},
    {"PWD",
     QT_TRANSLATE_NOOP("EveModel",
                       "The current working directory as set by the cd built-in command."),
     false},
    {"PROMPT_COMMAND",
     QT_TRANSLATE_NOOP("EveModel", "If set, the value is interpreted as a command to execute "
                                   "before the printing of each primary prompt (PS1)."),
     true},
    {"PPID", QT_TRANSLATE_NOOP("EveModel", "The process ID of the shell's parent process."), true},
    {"OSTYPE",
     QT_TRANSLATE_NOOP("EveModel", "A string describing the operating system Bash is running on."),
     true},
    {"LANG",
     QT_TRANSLATE_NOOP("EveModel", "Used to determine the locale category for any category not "
                                   "specifically selected with a variable starting with LC_."),
     false},
    {"LC_ALL",
     QT_TRANSLATE_NOOP("EveModel", "This variable overrides the value of LANG and any other LC_ "
                                   "variable specifying a locale category."),
     false},
    {"HOSTNAME", QT_TRANSLATE_NOOP("EveModel", "The name of the current host."), false},
    {"HISTCONTROL",
     QT_TRANSLATE_NOOP("EveModel", "Defines whether a command is added to the history file."),
     true},
    {"USER", QT_TRANSLATE_NOOP("EveModel", "Username."), true},
    {"SSH_AGENT_PID", QT_TRANSLATE_NOOP("EveModel", "Holds the agent's process ID."), true},
    {"DESKTOP_SESSION",
     QT_TRANSLATE_NOOP("EveModel", "Stores the desktop name.. kde, gnome or something else."),
     true},
    {"XDG_SESSION_COOKIE",
     QT_TRANSLATE_NOOP("EveModel", "XDG_SESSION_COOKIE: Variable set by XDG_Utils package."), true},
    {"XDG_DATA_DIRS",
     QT_TRANSLATE_NOOP("EveModel",
                       "XDG_DATA_DIRS: Determines paths for directories used by XDG_Utils."),
     true},
    {"XCURSOR_THEME", QT_TRANSLATE_NOOP("EveModel", "XCURSOR_THEME: Determines cursor theme."),
     false},
    {"XAUTHORITY",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "XAUTHORITY: Path to file contains user cookies for authorization on X-Server."),
     true},
    {"WINDOWPATH", QT_TRANSLATE_NOOP("EveModel", "WINDOWPATH: Set by X-server."), true},
    {"WINDOWID", QT_TRANSLATE_NOOP("EveModel", "WINDOWID: Set by X-server, Id of window."), true},
    {"USERNAME", QT_TRANSLATE_NOOP("EveModel", "USERNAME: Name of logined user."), false},
    {"TERM",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "TERM: Determines method of screen clearing, cursor moving etc, use by many programs."),
     true},
    {"SSH_AUTH_SOCK",
     QT_TRANSLATE_NOOP("EveModel", "SSH_AUTH_SOCK: Variable set by SSH, use for determine method "
                                   "of connection to active SSH agent."),
     true},
    {"SESSION_MANAGER",
     QT_TRANSLATE_NOOP("EveModel", "SESSION_MANAGER: Location of socket using for X-session."),
     true},
    {"OLDPWD", QT_TRANSLATE_NOOP("EveModel", "OLDPWD: Previous work dir set by cd command."), true},
    {"LS_COLORS",
     QT_TRANSLATE_NOOP("EveModel",
                       "LS_COLORS: Information about color scheme used with ls command."),
     true},
    {"LANGUAGE", QT_TRANSLATE_NOOP("EveModel", "LANGUAGE: May contain information about language."),
     false},
    {"MC_SID", QT_TRANSLATE_NOOP("EveModel", "ID of instance of Midnight Commander."), true},
    {"LANG", QT_TRANSLATE_NOOP("EveModel", "LANG: Determines desirable locale."), false},
    {"KONSOLE_DCOP_SESSION",
     QT_TRANSLATE_NOOP("EveModel",
                       "KONSOLE_DCOP_SESSION: Variable set by Konsole Terminal Emulator."),
     true},
    {"KONSOLE_DCOP",
     QT_TRANSLATE_NOOP("EveModel", "KONSOLE_DCOP: Variable set by Konsole Terminal Emulator, used "
                                   "for Desktop COmmunication Protocol needs."),
     true},
    {"KDE_MULTIHEAD", QT_TRANSLATE_NOOP("EveModel", "KDE_MULTIHEAD: Variable set by KDE."), true},
    {"KDE_SESSION_UID", QT_TRANSLATE_NOOP("EveModel", "KDE_SESSION_UID: Variable set by KDE."),
     true},
    {"KDE_FULL_SESSION", QT_TRANSLATE_NOOP("EveModel", "KDE_FULL_SESSION: Variable set by KDE."),
     true},
    {"GTK_RC_FILES",
     QT_TRANSLATE_NOOP("EveModel", "GTK_RC_FILES: Variable set by GTK (Gimp Toolkit Library)."),
     true},
    {"GTK2_RC_FILES",
     QT_TRANSLATE_NOOP("EveModel", "GTK2_RC_FILES: Variable set by GTK (Gimp Toolkit Library)."),
     true},
    {"GDMSESSION",
     QT_TRANSLATE_NOOP("EveModel",
                       "GDMSESSION: Contains basename of .desktop file using in current session."),
     true},
    {"GDM_XSERVER_LOCATION",
     QT_TRANSLATE_NOOP("EveModel",
                       "GDM_XSERVER_LOCATION: Location of X-Server for Gnome Display Manager."),
     true},
    {"GDM_LANG", QT_TRANSLATE_NOOP("EveModel", "GDM_LANG: Language for Gnome Display Manager."),
     true},
    {"DISPLAY",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "DISPLAY: Contains address of computer, where additional window must be opened."),
     true},
    {"DESKTOP_STARTUP_ID",
     QT_TRANSLATE_NOOP(
         "EveModel",
         "DESKTOP_STARTUP_ID: For interprocess (launcher and launchee) information exchange."),
     true},
    {"COLORTERM", QT_TRANSLATE_NOOP("EveModel", "Additional property of terminal emulator."),
     false},
    {"MC_TMPDIR", QT_TRANSLATE_NOOP("EveModel", "Temp directory for Midnight Commander needs."),
     true},
    {"KDE_SESSION_VERSION",
     QT_TRANSLATE_NOOP("EveModel", "Since KDE4 contains the major version number."), true},
};

} // namespace

void Catalogue::describe(QStringList &record)
{
    // Looked up by name: the environment can hold thousands of variables.
    static const QHash<QString, int> firstOfName = [] {
        QHash<QString, int> index; // filled from the back, so the first entry of a name wins
        for (int i = int(std::size(knownVariables)) - 1; i >= 0; --i)
            index.insert(QLatin1String(knownVariables[i].name), i);
        return index;
    }();
    const auto found = firstOfName.constFind(record.value(Record::Variable));
    if (found == firstOfName.constEnd())
        return;
    const KnownVariable &known = knownVariables[found.value()];
    while (record.size() < Record::ColumnCount)
        record.append(QString());
    record[Record::Description] = QCoreApplication::translate("EveModel", known.description);
    if (known.vip)
        record[Record::Vip] = QStringLiteral("true");
}
