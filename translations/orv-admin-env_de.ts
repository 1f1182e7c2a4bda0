<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Backups</name>
    <message>
        <location filename="../core/files/backups.cpp" line="+271"/>
        <source>it is not in the folder of copies</source>
        <translation>sie liegt nicht im Ordner der Kopien</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>it is a symbolic link</source>
        <translation>sie ist ein symbolischer Link</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>it is not a regular file</source>
        <translation>sie ist keine reguläre Datei</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>it belongs to another user</source>
        <translation>sie gehört einem anderen Benutzer</translation>
    </message>
</context>
<context>
    <name>BackupsTool</name>
    <message>
        <location filename="../cli/backups/backupstool.cpp" line="+23"/>
        <source>Cannot read the folder of copies %1: %2
</source>
        <translation>Der Ordner der Kopien %1 kann nicht gelesen werden: %2
</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>No copies are kept in %1.
</source>
        <translation>In %1 liegen keine Kopien.
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No copies of %1 are kept in %2.
</source>
        <translation>In %2 liegen keine Kopien von %1.
</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 is not the name of a copy; &quot;list&quot; shows them.
</source>
        <translation>%1 ist nicht der Name einer Kopie; „list“ zeigt sie.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 is not a copy that can be used: %2
</source>
        <translation>%1 ist keine verwendbare Kopie: %2
</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The copy %1 cannot be read: %2
</source>
        <translation>Die Kopie %1 kann nicht gelesen werden: %2
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 cannot be read: %2
</source>
        <translation>%1 kann nicht gelesen werden: %2
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 is the same as the copy.
</source>
        <translation>%1 ist gleich der Kopie.
</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Restored %1 from its copy of %2.
</source>
        <translation>%1 aus der Kopie vom %2 wiederhergestellt.
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>What it held before is kept in %1.
</source>
        <translation>Der bisherige Inhalt liegt in %1.
</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Usage: orv-admin-env-backups list [FILE]
       orv-admin-env-backups diff COPY
       orv-admin-env-backups restore COPY

Lists, compares and restores the copies that the Environment Variables Editor
keeps of a start-up file each time it rewrites it.

  list [FILE]   the copies, newest first, one a line: time, size in bytes,
                start-up file and copy, separated by tabs; only those of
                FILE when it is given
  diff COPY     what restoring COPY would change in its file (unified diff)
  restore COPY  writes COPY back into its file in place, after keeping a
                copy of the file as it is now, so a restore can be undone
  --help        this text

COPY is a copy&apos;s name as list prints it, or the path of a copy.
The copies are kept in %1.

Exit status: 0 done, 1 a copy, a file or the folder of copies cannot be read,
2 wrong arguments, 3 the file could not be restored (it is left as it was).
</source>
        <translation>Aufruf: orv-admin-env-backups list [DATEI]
        orv-admin-env-backups diff KOPIE
        orv-admin-env-backups restore KOPIE

Listet, vergleicht und stellt die Kopien wieder her, die der Editor für
Umgebungsvariablen von einer Startdatei anlegt, bevor er sie neu schreibt.

  list [DATEI]   die Kopien, neueste zuerst, eine je Zeile: Zeit, Größe in
                 Bytes, Startdatei und Kopie, durch Tabulatoren getrennt;
                 nur die von DATEI, wenn sie angegeben ist
  diff KOPIE     was das Wiederherstellen von KOPIE in ihrer Datei ändern
                 würde (vereinheitlichtes Diff)
  restore KOPIE  schreibt KOPIE an Ort und Stelle in ihre Datei zurück, nachdem
                 die Datei, wie sie jetzt ist, kopiert wurde; so lässt sich auch
                 eine Wiederherstellung rückgängig machen
  --help         dieser Text

KOPIE ist der Name einer Kopie, wie list ihn ausgibt, oder der Pfad einer Kopie.
Die Kopien liegen in %1.

Rückgabewert: 0 erledigt, 1 eine Kopie, eine Datei oder der Ordner der Kopien
ist nicht lesbar, 2 falsche Argumente, 3 die Datei konnte nicht wiederhergestellt
werden (sie bleibt, wie sie war).
</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Wrong arguments.
</source>
        <translation>Falsche Argumente.
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown command: %1
</source>
        <translation>Unbekannter Befehl: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Try &quot;orv-admin-env-backups --help&quot;.
</source>
        <translation>Siehe „orv-admin-env-backups --help“.
</translation>
    </message>
</context>
<context>
    <name>ChangePreview</name>
    <message>
        <location filename="../core/preview/changepreview.cpp" line="+17"/>
        <source>The value of %1 cannot be written into a start-up file: %2. The save will write nothing.</source>
        <translation>Der Wert von %1 kann nicht in eine Startdatei geschrieben werden: %2. Das Speichern schreibt nichts.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 is saved into %2, because its file %3 cannot be opened: %4.</source>
        <translation>%1 wird in %2 gespeichert, weil die eigene Datei %3 nicht geöffnet werden kann: %4.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The save will stop at %1: %2 cannot be opened: %3. Nothing after it is saved and no variable is deleted.</source>
        <translation>Das Speichern bricht bei %1 ab: %2 kann nicht geöffnet werden: %3. Nichts danach wird gespeichert und keine Variable gelöscht.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 cannot be deleted: its file %2 cannot be opened: %3.</source>
        <translation>%1 kann nicht gelöscht werden: die Datei %2 kann nicht geöffnet werden: %3.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1 line %2 refers to %3; the save writes %4 instead.</source>
        <translation>%1 Zeile %2 verweist auf %3; das Speichern schreibt stattdessen %4.</translation>
    </message>
</context>
<context>
    <name>DotEnv</name>
    <message>
        <location filename="../core/export/dotenv.cpp" line="+32"/>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not NAME=VALUE</source>
        <translation>nicht NAME=WERT</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>the double quote is not closed</source>
        <translation>das doppelte Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the single quote is not closed</source>
        <translation>das einfache Anführungszeichen wird nicht geschlossen</translation>
    </message>
</context>
<context>
    <name>EnvTool</name>
    <message>
        <location filename="../cli/env/envtool.cpp" line="+53"/>
        <source>Try &quot;orv-admin-env-cli --help&quot;.
</source>
        <translation>Siehe &quot;orv-admin-env-cli --help&quot;.
</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+185"/>
        <source>%1 cannot be read: %2
</source>
        <translation>%1 kann nicht gelesen werden: %2
</translation>
    </message>
    <message>
        <location line="-134"/>
        <source>unset needs a NAME</source>
        <translation>unset braucht einen NAMEN</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+96"/>
        <location line="+107"/>
        <source>%1 is not a variable of this session</source>
        <translation>%1 ist keine Variable dieser Sitzung</translation>
    </message>
    <message>
        <location line="-198"/>
        <source>Expected &quot;set NAME VALUE&quot; or &quot;unset NAME&quot;, not &quot;%1&quot;</source>
        <translation>Erwartet wurde &quot;set NAME VALUE&quot; oder &quot;unset NAME&quot;, nicht &quot;%1&quot;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is not a variable name: letters, digits and &quot;_&quot;, not starting with a digit</source>
        <translation>%1 ist kein Variablenname: Buchstaben, Ziffern und &quot;_&quot;, nicht mit einer Ziffer beginnend</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Unknown option: %1</source>
        <translation>Unbekannte Option: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>--system: only a root session writes the system-wide start-up file</source>
        <translation>--system: nur eine root-Sitzung schreibt die systemweite Startdatei</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>The value of %1 cannot be written into a start-up file: %2. Nothing was saved.</source>
        <translation>Der Wert von %1 kann nicht in eine Startdatei geschrieben werden: %2. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Nothing was saved: run again with --yes to save anyway, or with --dry-run to see every line it changes.
</source>
        <translation>Es wurde nichts gespeichert: erneut mit --yes aufrufen, um trotzdem zu speichern, oder mit --dry-run, um jede geänderte Zeile zu sehen.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: cannot save %2: %3
</source>
        <translation>%1: %2 kann nicht gespeichert werden: %3
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saved %1 without a copy: %2
</source>
        <translation>%1 wurde ohne Kopie gespeichert: %2
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saved %1
</source>
        <translation>%1 gespeichert
</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>export --format ansible needs the NAMEs to set</source>
        <translation>export --format ansible braucht die zu setzenden NAMEN</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Unknown format: %1</source>
        <translation>Unbekanntes Format: %1</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Usage: orv-admin-env-cli list [--json]
       orv-admin-env-cli get NAME
       orv-admin-env-cli where NAME
       orv-admin-env-cli [--dry-run] [--yes] set NAME VALUE [--system]
                         [--description TEXT] [--critical] [set ...] [unset NAME]
       orv-admin-env-cli [--dry-run] [--yes] unset NAME [set ...] [unset ...]
       orv-admin-env-cli export --format env|json|ansible [NAME...]
       orv-admin-env-cli [--dry-run] [--yes] import FILE.env
       orv-admin-env-cli backups list|diff|restore ...

The Environment Variables Editor from a shell: the same variables, start-up
files, rules and safe saves as its window.

  list         the variables of this session: name, value, origin file,
               description and &quot;critical&quot;, separated by tabs (--json: JSON)
  get NAME     the variable&apos;s value
  where NAME   every line of the start-up files that sets it, one a line
  set, unset   changes, as many as given, written as one save
  export       the variables as .env lines, as JSON, or as an Ansible
               playbook that makes the same change on any machine
  import       sets every NAME=VALUE of a .env file, as one save
  backups      the copies of the start-up files (see orv-admin-env-backups)
  --dry-run    prints the unified diff of every file the save would write,
               and its warnings on the error output; writes nothing
  --yes        saves even when the save also changes variables not named
  --help       this text

Exit status: 0 done, 1 a file could not be read or written (nothing changed
in it), 2 wrong arguments or a refused change.
</source>
        <translation>Aufruf: orv-admin-env-cli list [--json]
       orv-admin-env-cli get NAME
       orv-admin-env-cli where NAME
       orv-admin-env-cli [--dry-run] [--yes] set NAME VALUE [--system]
                         [--description TEXT] [--critical] [set ...] [unset NAME]
       orv-admin-env-cli [--dry-run] [--yes] unset NAME [set ...] [unset ...]
       orv-admin-env-cli export --format env|json|ansible [NAME...]
       orv-admin-env-cli [--dry-run] [--yes] import FILE.env
       orv-admin-env-cli backups list|diff|restore ...

Der Editor für Umgebungsvariablen in der Shell: dieselben Variablen, Startdateien,
Regeln und sicheren Speichervorgänge wie sein Fenster.

  list         die Variablen dieser Sitzung: Name, Wert, Herkunftsdatei,
               Beschreibung und &quot;critical&quot;, durch Tabulatoren getrennt (--json: JSON)
  get NAME     der Wert der Variablen
  where NAME   jede Zeile der Startdateien, die sie setzt, eine pro Zeile
  set, unset   Änderungen, beliebig viele, als ein Speichervorgang geschrieben
  export       die Variablen als .env-Zeilen, als JSON oder als Ansible-Playbook,
               das dieselbe Änderung auf jedem Rechner macht
  import       setzt jedes NAME=VALUE einer .env-Datei, als ein Speichervorgang
  backups      die Kopien der Startdateien (siehe orv-admin-env-backups)
  --dry-run    gibt den Unified-Diff jeder Datei aus, die gespeichert würde,
               und die Warnungen auf der Fehlerausgabe; schreibt nichts
  --yes        speichert auch, wenn das Speichern nicht genannte Variablen ändert
  --help       dieser Text

Rückgabewert: 0 erledigt, 1 eine Datei konnte nicht gelesen oder geschrieben werden
(nichts darin geändert), 2 falsche Argumente oder eine abgelehnte Änderung.
</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>No command given.</source>
        <translation>Kein Befehl angegeben.</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Wrong arguments for %1.</source>
        <translation>Falsche Argumente für %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown command: %1</source>
        <translation>Unbekannter Befehl: %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDFormat</name>
    <message>
        <location filename="../core/reach/environmentdformat.cpp" line="+9"/>
        <source>%1 is not a variable name environment.d accepts</source>
        <translation>%1 ist kein Variablenname, den environment.d annimmt</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>environment.d cannot set a variable to an empty value</source>
        <translation>environment.d kann eine Variable nicht auf einen leeren Wert setzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>environment.d cannot hold a value with a line break</source>
        <translation>environment.d kann keinen Wert mit einem Zeilenumbruch aufnehmen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>environment.d cannot pass on a value with a tab or another control character as it is</source>
        <translation>environment.d kann einen Wert mit einem Tabulator oder einem anderen Steuerzeichen nicht unverändert weitergeben</translation>
    </message>
</context>
<context>
    <name>EtcEnvironment</name>
    <message>
        <location filename="../core/reach/etcenvironment.cpp" line="+56"/>
        <source>%1 cannot be read: it is not a regular file</source>
        <translation>%1 kann nicht gelesen werden: sie ist keine reguläre Datei</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+3"/>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>Eve</name>
    <message>
        <location filename="../gui/app/eve.cpp" line="+96"/>
        <source>Orv environment variable editor</source>
        <translation>Orv-Editor für Umgebungsvariablen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Orv env editor</source>
        <translation>Orv-Umgebungseditor</translation>
    </message>
    <message>
        <location line="+150"/>
        <source>Help Dump</source>
        <translation>Hilfeausgabe</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Apply changes now?</source>
        <translation>Änderungen jetzt übernehmen?</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Do you want to save data and apply changes now?</source>
        <translation>Möchten Sie die Daten speichern und die Änderungen jetzt übernehmen?</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>New settings have been applied!</source>
        <translation>Die neuen Einstellungen wurden übernommen!</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Save anyway</source>
        <translation>Trotzdem speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Preview...</source>
        <translation>Vorschau...</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Changes were saved successfully!</source>
        <translation>Die Änderungen wurden erfolgreich gespeichert!</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes were saved</source>
        <translation>Änderungen gespeichert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes were saved and will be applied after restarting a session!</source>
        <translation>Die Änderungen wurden gespeichert und werden nach einem Neustart der Sitzung wirksam!</translation>
    </message>
    <message>
        <location line="-22"/>
        <location line="+26"/>
        <location line="+91"/>
        <location line="+19"/>
        <source>Attention!</source>
        <translation>Achtung!</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Unable to save changes - file access denied!</source>
        <translation>Die Änderungen konnten nicht gespeichert werden - Zugriff auf die Datei verweigert!</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>All changes were reseted!</source>
        <translation>Alle Änderungen wurden zurückgesetzt!</translation>
    </message>
    <message>
        <location line="+70"/>
        <source>Changes are not saved!</source>
        <translation>Die Änderungen sind nicht gespeichert!</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Do you want to save your changes?
 (Changes will be applied after restarting a session)</source>
        <translation>Möchten Sie Ihre Änderungen speichern?
 (Die Änderungen werden nach einem Neustart der Sitzung wirksam)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Do you really want to reset?</source>
        <translation>Möchten Sie wirklich zurücksetzen?</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Do you really want to delete SYSTEM variable located at file 
</source>
        <translation>Möchten Sie wirklich die SYSTEM-Variable löschen, die in folgender Datei steht: 
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Do you really want to delete a variable?</source>
        <translation>Möchten Sie die Variable wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>EveModel</name>
    <message>
        <location filename="../core/variables/catalogue.cpp" line="+23"/>
        <source>The current user&apos;s home directory; the default for the cd built-in. The value of this variable is also used by tilde expansion.</source>
        <translation>Das Home-Verzeichnis des aktuellen Benutzers; der Standard für den eingebauten Befehl cd. Der Wert dieser Variable wird auch bei der Tilde-Expansion verwendet.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Your logname</source>
        <translation>Ihr Anmeldename</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Your shell</source>
        <translation>Ihre Shell</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A colon-separated list of directories used as a search path for the cd built-in command.</source>
        <translation>Eine durch Doppelpunkte getrennte Liste von Verzeichnissen, die als Suchpfad für den eingebauten Befehl cd dient.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>A list of characters that separate fields; used when the shell splits words as part of expansion.</source>
        <translation>Eine Liste von Zeichen, die Felder trennen; wird verwendet, wenn die Shell bei der Expansion Wörter aufteilt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>If this parameter is set to a file name and the MAILPATH variable is not set, Bash informs the user of the arrival of mail in the specified file.</source>
        <translation>Ist dieser Parameter auf einen Dateinamen gesetzt und die Variable MAILPATH nicht gesetzt, informiert Bash den Benutzer über neue Post in der angegebenen Datei.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>A colon-separated list of file names which the shell periodically checks for new mail.</source>
        <translation>Eine durch Doppelpunkte getrennte Liste von Dateinamen, die die Shell regelmäßig auf neue Post prüft.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The value of the last option argument processed by the getopts built-in.</source>
        <translation>Der Wert des letzten Optionsarguments, das der eingebaute Befehl getopts verarbeitet hat.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The index of the last option argument processed by the getopts built-in.</source>
        <translation>Der Index des letzten Optionsarguments, das der eingebaute Befehl getopts verarbeitet hat.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>A colon-separated list of directories in which the shell looks for commands.</source>
        <translation>Eine durch Doppelpunkte getrennte Liste von Verzeichnissen, in denen die Shell nach Befehlen sucht.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The primary prompt string.</source>
        <translation>Die primäre Eingabeaufforderung.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The secondary prompt string.</source>
        <translation>Die sekundäre Eingabeaufforderung.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The full pathname used to execute the current instance of Bash.</source>
        <translation>Der vollständige Pfadname, mit dem die aktuelle Bash-Instanz gestartet wurde.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>If this variable is set when Bash is invoked to execute a shell script, its value is expanded and used as the name of a startup file to read before executing the script.</source>
        <translation>Ist diese Variable gesetzt, wenn Bash zum Ausführen eines Shell-Skripts aufgerufen wird, wird ihr Wert expandiert und als Name einer Startdatei verwendet, die vor dem Ausführen des Skripts gelesen wird.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The version number of the current instance of Bash.</source>
        <translation>Die Versionsnummer der aktuellen Bash-Instanz.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A read-only array variable whose members hold version information for this instance of Bash.</source>
        <translation>Eine schreibgeschützte Array-Variable, deren Elemente Versionsinformationen zu dieser Bash-Instanz enthalten.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Used by the select built-in to determine the terminal width when printing selection lists. Automatically set upon receipt of a SIGWINCH signal.</source>
        <translation>Wird vom eingebauten Befehl select verwendet, um beim Ausgeben von Auswahllisten die Terminalbreite zu bestimmen. Wird beim Empfang eines SIGWINCH-Signals automatisch gesetzt.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>An index into ${COMP_WORDS} of the word containing the current cursor position.</source>
        <translation>Der Index in ${COMP_WORDS} des Wortes, das die aktuelle Cursorposition enthält.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The current command line.</source>
        <translation>Die aktuelle Befehlszeile.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The numeric, real user ID of the current user.</source>
        <translation>Die numerische, reale Benutzerkennung des aktuellen Benutzers.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Incremented by one each time a new instance of Bash is started.</source>
        <translation>Wird bei jedem Start einer neuen Bash-Instanz um eins erhöht.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A colon-separated list of enabled shell options.</source>
        <translation>Eine durch Doppelpunkte getrennte Liste der aktivierten Shell-Optionen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The default variable for the read built-in.</source>
        <translation>Die Standardvariable für den eingebauten Befehl read.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>GHOSTSCRIPT library.</source>
        <translation>GHOSTSCRIPT-Bibliothek.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The value of this parameter is used as a format string specifying how the timing information for pipelines prefixed with the time reserved word should be displayed.</source>
        <translation>Der Wert dieses Parameters dient als Formatzeichenkette, die festlegt, wie die Zeitmessung für Pipelines angezeigt wird, denen das reservierte Wort time vorangestellt ist.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Each time this parameter is referenced, a random integer between 0 and 32767 is generated. Assigning a value to this variable seeds the random number generator.</source>
        <translation>Bei jedem Zugriff auf diesen Parameter wird eine zufällige Ganzzahl zwischen 0 und 32767 erzeugt. Eine Zuweisung an diese Variable initialisiert den Zufallszahlengenerator.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The current working directory as set by the cd built-in command.</source>
        <translation>Das aktuelle Arbeitsverzeichnis, wie es der eingebaute Befehl cd gesetzt hat.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>If set, the value is interpreted as a command to execute before the printing of each primary prompt (PS1).</source>
        <translation>Falls gesetzt, wird der Wert als Befehl interpretiert, der vor der Ausgabe jeder primären Eingabeaufforderung (PS1) ausgeführt wird.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The process ID of the shell&apos;s parent process.</source>
        <translation>Die Prozesskennung des Elternprozesses der Shell.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A string describing the operating system Bash is running on.</source>
        <translation>Eine Zeichenkette, die das Betriebssystem beschreibt, auf dem Bash läuft.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Used to determine the locale category for any category not specifically selected with a variable starting with LC_.</source>
        <translation>Bestimmt die Locale für jede Kategorie, die nicht ausdrücklich durch eine mit LC_ beginnende Variable gewählt ist.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>This variable overrides the value of LANG and any other LC_ variable specifying a locale category.</source>
        <translation>Diese Variable setzt den Wert von LANG und jeder anderen LC_-Variable, die eine Locale-Kategorie festlegt, außer Kraft.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The name of the current host.</source>
        <translation>Der Name des aktuellen Rechners.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Defines whether a command is added to the history file.</source>
        <translation>Legt fest, ob ein Befehl in die History-Datei aufgenommen wird.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Username.</source>
        <translation>Benutzername.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Holds the agent&apos;s process ID.</source>
        <translation>Enthält die Prozesskennung des Agenten.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stores the desktop name.. kde, gnome or something else.</source>
        <translation>Speichert den Namen der Arbeitsumgebung.. kde, gnome oder eine andere.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>XDG_SESSION_COOKIE: Variable set by XDG_Utils package.</source>
        <translation>XDG_SESSION_COOKIE: Vom Paket XDG_Utils gesetzte Variable.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>XDG_DATA_DIRS: Determines paths for directories used by XDG_Utils.</source>
        <translation>XDG_DATA_DIRS: Legt die Pfade der von XDG_Utils verwendeten Verzeichnisse fest.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>XCURSOR_THEME: Determines cursor theme.</source>
        <translation>XCURSOR_THEME: Legt das Mauszeiger-Thema fest.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>XAUTHORITY: Path to file contains user cookies for authorization on X-Server.</source>
        <translation>XAUTHORITY: Pfad zur Datei mit den Cookies des Benutzers für die Anmeldung am X-Server.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>WINDOWPATH: Set by X-server.</source>
        <translation>WINDOWPATH: Vom X-Server gesetzt.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>WINDOWID: Set by X-server, Id of window.</source>
        <translation>WINDOWID: Vom X-Server gesetzt, Kennung des Fensters.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USERNAME: Name of logined user.</source>
        <translation>USERNAME: Name des angemeldeten Benutzers.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>TERM: Determines method of screen clearing, cursor moving etc, use by many programs.</source>
        <translation>TERM: Bestimmt, wie der Bildschirm gelöscht, der Cursor bewegt wird usw., von vielen Programmen verwendet.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>SSH_AUTH_SOCK: Variable set by SSH, use for determine method of connection to active SSH agent.</source>
        <translation>SSH_AUTH_SOCK: Von SSH gesetzte Variable, bestimmt, wie die Verbindung zum aktiven SSH-Agenten hergestellt wird.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>SESSION_MANAGER: Location of socket using for X-session.</source>
        <translation>SESSION_MANAGER: Ort des Sockets, den die X-Sitzung verwendet.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>OLDPWD: Previous work dir set by cd command.</source>
        <translation>OLDPWD: Vorheriges Arbeitsverzeichnis, vom Befehl cd gesetzt.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>LS_COLORS: Information about color scheme used with ls command.</source>
        <translation>LS_COLORS: Angaben zum Farbschema, das der Befehl ls verwendet.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>LANGUAGE: May contain information about language.</source>
        <translation>LANGUAGE: Kann Angaben zur Sprache enthalten.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ID of instance of Midnight Commander.</source>
        <translation>Kennung der Midnight-Commander-Instanz.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>LANG: Determines desirable locale.</source>
        <translation>LANG: Legt die gewünschte Locale fest.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>KONSOLE_DCOP_SESSION: Variable set by Konsole Terminal Emulator.</source>
        <translation>KONSOLE_DCOP_SESSION: Vom Terminalemulator Konsole gesetzte Variable.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>KONSOLE_DCOP: Variable set by Konsole Terminal Emulator, used for Desktop COmmunication Protocol needs.</source>
        <translation>KONSOLE_DCOP: Vom Terminalemulator Konsole gesetzte Variable, wird für das Desktop COmmunication Protocol (DCOP) benötigt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>KDE_MULTIHEAD: Variable set by KDE.</source>
        <translation>KDE_MULTIHEAD: Von KDE gesetzte Variable.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>KDE_SESSION_UID: Variable set by KDE.</source>
        <translation>KDE_SESSION_UID: Von KDE gesetzte Variable.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>KDE_FULL_SESSION: Variable set by KDE.</source>
        <translation>KDE_FULL_SESSION: Von KDE gesetzte Variable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GTK_RC_FILES: Variable set by GTK (Gimp Toolkit Library).</source>
        <translation>GTK_RC_FILES: Von GTK (Gimp-Toolkit-Bibliothek) gesetzte Variable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GTK2_RC_FILES: Variable set by GTK (Gimp Toolkit Library).</source>
        <translation>GTK2_RC_FILES: Von GTK (Gimp-Toolkit-Bibliothek) gesetzte Variable.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GDMSESSION: Contains basename of .desktop file using in current session.</source>
        <translation>GDMSESSION: Enthält den Basisnamen der .desktop-Datei der aktuellen Sitzung.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>GDM_XSERVER_LOCATION: Location of X-Server for Gnome Display Manager.</source>
        <translation>GDM_XSERVER_LOCATION: Ort des X-Servers für den Gnome Display Manager.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GDM_LANG: Language for Gnome Display Manager.</source>
        <translation>GDM_LANG: Sprache für den Gnome Display Manager.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DISPLAY: Contains address of computer, where additional window must be opened.</source>
        <translation>DISPLAY: Enthält die Adresse des Rechners, auf dem weitere Fenster geöffnet werden sollen.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>DESKTOP_STARTUP_ID: For interprocess (launcher and launchee) information exchange.</source>
        <translation>DESKTOP_STARTUP_ID: Für den Informationsaustausch zwischen Prozessen (startendem und gestartetem Programm).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Additional property of terminal emulator.</source>
        <translation>Zusätzliche Eigenschaft des Terminalemulators.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temp directory for Midnight Commander needs.</source>
        <translation>Temporäres Verzeichnis für Midnight Commander.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Since KDE4 contains the major version number.</source>
        <translation>Enthält seit KDE4 die Hauptversionsnummer.</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="+22"/>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Origin</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <location filename="../gui/model/criticalchange.cpp" line="+9"/>
        <source>Request of confirmation</source>
        <translation>Bestätigung erforderlich</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Really change the value of system variable?</source>
        <translation>Den Wert der Systemvariable wirklich ändern?</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="+245"/>
        <source>__new__</source>
        <translation>__new__</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>VALUE</source>
        <translation>WERT</translation>
    </message>
    <message>
        <location filename="../core/variables/variabletable.cpp" line="+24"/>
        <location filename="../gui/model/evemodel.cpp" line="-201"/>
        <location line="+34"/>
        <location line="+167"/>
        <location line="+14"/>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="-198"/>
        <source>Couldn&apos;t open file: %1 !</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1 !</translation>
    </message>
    <message>
        <location filename="../core/save/commit.cpp" line="+26"/>
        <source>Its content from before the save is kept in %1.</source>
        <translation>Ihr Inhalt von vor dem Speichern liegt in %1.</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="+52"/>
        <location line="+3"/>
        <source>Warning!</source>
        <translation>Warnung!</translation>
    </message>
    <message>
        <location line="-22"/>
        <source>Couldn&apos;t write file %1 for saving variable %2: %3</source>
        <translation>Die Datei %1 konnte zum Speichern der Variable %2 nicht geschrieben werden: %3</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Couldn&apos;t open file %1 for saving variable %2</source>
        <translation>Die Datei %1 konnte zum Speichern der Variable %2 nicht geöffnet werden</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Couldn&apos;t open file %1 for deleting variable %2</source>
        <translation>Die Datei %1 konnte zum Löschen der Variable %2 nicht geöffnet werden</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The value of %1 cannot be written into a start-up file: %2. Nothing was saved.</source>
        <translation>Der Wert von %1 kann nicht in eine Startdatei geschrieben werden: %2. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Couldn&apos;t write file %1 for deleting variable %2: %3</source>
        <translation>Die Datei %1 konnte zum Löschen der Variable %2 nicht geschrieben werden: %3</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Saved %1 without a copy: %2</source>
        <translation>%1 wurde ohne Kopie gespeichert: %2</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <location filename="../gui/lookup/filterbar.cpp" line="+24"/>
        <source>Filter variables</source>
        <translation>Variablen filtern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shows only the variables whose name, value or description contain this text (Ctrl+F)</source>
        <translation>Zeigt nur die Variablen, deren Name, Wert oder Beschreibung diesen Text enthält (Strg+F)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Filter variables</source>
        <translation>Variablen &amp;filtern</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>%1 of %2 variables</source>
        <translation>Variablen: %1 von %2</translation>
    </message>
</context>
<context>
    <name>FishFormat</name>
    <message>
        <location filename="../core/reach/fishformat.cpp" line="+52"/>
        <source>%1 is not a variable name fish accepts</source>
        <translation>%1 ist kein Variablenname, den fish annimmt</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>fish cannot hold a value with a NUL character</source>
        <translation>fish kann keinen Wert mit einem NUL-Zeichen aufnehmen</translation>
    </message>
</context>
<context>
    <name>GeneratorProbe</name>
    <message>
        <location filename="../core/reach/generatorprobe.cpp" line="+16"/>
        <source>the systemd environment generator</source>
        <translation>der systemd-Umgebungsgenerator</translation>
    </message>
    <message>
        <location line="+93"/>
        <source>the systemd environment generator is not installed: %1 was not found</source>
        <translation>der systemd-Umgebungsgenerator ist nicht installiert: %1 wurde nicht gefunden</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>the systemd environment generator did not finish in %1 seconds</source>
        <translation>der systemd-Umgebungsgenerator wurde nicht in %1 Sekunden fertig</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the systemd environment generator printed more than 1 MiB, so it was stopped</source>
        <translation>der systemd-Umgebungsgenerator gab mehr als 1 MiB aus und wurde daher beendet</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>the systemd environment generator could not be started: %1</source>
        <translation>der systemd-Umgebungsgenerator konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>the systemd environment generator was killed by signal %1</source>
        <translation>der systemd-Umgebungsgenerator wurde durch das Signal %1 beendet</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>the systemd environment generator exited with status %1</source>
        <translation>der systemd-Umgebungsgenerator endete mit dem Status %1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the systemd environment generator printed a line this program cannot read: %1</source>
        <translation>der systemd-Umgebungsgenerator gab eine Zeile aus, die dieses Programm nicht lesen kann: %1</translation>
    </message>
</context>
<context>
    <name>LineGrammar</name>
    <message>
        <location filename="../core/shell/linegrammar.cpp" line="+29"/>
        <source>it holds a line break or another control character</source>
        <translation>er enthält einen Zeilenumbruch oder ein anderes Steuerzeichen</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>it opens a $(, ${ or ` that it does not close</source>
        <translation>er öffnet ein $(, ${ oder `, das er nicht schließt</translation>
    </message>
</context>
<context>
    <name>ListEditCommand</name>
    <message>
        <location filename="../gui/lookup/listeditcommand.cpp" line="+17"/>
        <source>Edit as &amp;list...</source>
        <translation>Als &amp;Liste bearbeiten...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Edit a colon-separated value such as PATH one entry per line</source>
        <translation>Einen durch Doppelpunkte getrennten Wert wie PATH Eintrag für Eintrag bearbeiten</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../resources/mainwindow.ui"/>
        <source>Environment Variables Editor</source>
        <translation>Editor für Umgebungsvariablen</translation>
    </message>
    <message>
        <location/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location/>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <location/>
        <source>toolBar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <location/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location/>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <location/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location/>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <location/>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <location/>
        <source>Ins</source>
        <comment>Ins</comment>
        <translation>Ins</translation>
    </message>
    <message>
        <location/>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <location/>
        <source>Del</source>
        <comment>Del</comment>
        <translation>Del</translation>
    </message>
    <message>
        <location/>
        <source>Preferences...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <location/>
        <source>Open Preferences dialog</source>
        <translation>Den Einstellungsdialog öffnen</translation>
    </message>
    <message>
        <location/>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
</context>
<context>
    <name>OrvHelpMenu</name>
    <message>
        <location filename="../platform/orvintegration.cpp" line="+49"/>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>About...</source>
        <translation>Über...</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
</context>
<context>
    <name>OwnedFile</name>
    <message>
        <location filename="../core/reach/ownedfile.cpp" line="+72"/>
        <source>line %1 of %2 continues on the next line, so it is left for you to change</source>
        <translation>Zeile %1 von %2 geht in der nächsten Zeile weiter und bleibt daher Ihnen zum Ändern überlassen</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>the last line of %1 ends in a backslash, which would join the new line to it</source>
        <translation>die letzte Zeile von %1 endet mit einem Backslash, der die neue Zeile an sie anhängen würde</translation>
    </message>
</context>
<context>
    <name>PathListDialog</name>
    <message>
        <location filename="../gui/lookup/pathlistdialog.cpp" line="+37"/>
        <source>Edit %1 as a list</source>
        <translation>%1 als Liste bearbeiten</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The entries of %1 in their order, one per line; double-click an entry to change it.</source>
        <translation>Die Einträge von %1 in ihrer Reihenfolge, einer pro Zeile; ein Doppelklick auf einen Eintrag ändert ihn.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>&amp;Add folder...</source>
        <translation>Ordner &amp;hinzufügen...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move &amp;up</source>
        <translation>Nach o&amp;ben</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move &amp;down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove du&amp;plicates</source>
        <translation>&amp;Duplikate entfernen</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <location line="+92"/>
        <source>empty: stands for the current folder</source>
        <translation>leer: steht für den aktuellen Ordner</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>does not exist</source>
        <translation>existiert nicht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>is not a folder</source>
        <translation>ist kein Ordner</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>duplicate of entry %1</source>
        <translation>Duplikat von Eintrag %1</translation>
    </message>
</context>
<context>
    <name>PreviewCommand</name>
    <message>
        <location filename="../gui/history/previewcommand.cpp" line="+16"/>
        <source>Pre&amp;view changes...</source>
        <translation>&amp;Vorschau der Änderungen...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show every line the next save would change in each file</source>
        <translation>Jede Zeile zeigen, die das nächste Speichern in jeder Datei ändern würde</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <location filename="../gui/history/previewdialog.cpp" line="+37"/>
        <source>Preview changes</source>
        <translation>Vorschau der Änderungen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saving changes no file.</source>
        <translation>Das Speichern ändert keine Datei.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Saving changes one file.</source>
        <translation>Das Speichern ändert eine Datei.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Saving changes %1 files.</source>
        <translation>Das Speichern ändert %1 Dateien.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>%1 (new file)</source>
        <translation>%1 (neue Datei)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (now)</source>
        <translation>%1 (jetzt)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (after saving)</source>
        <translation>%1 (nach dem Speichern)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
</context>
<context>
    <name>ReachCommand</name>
    <message>
        <location filename="../gui/reach/reachcommand.cpp" line="+15"/>
        <source>R&amp;each...</source>
        <translation>Wirk&amp;ung...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show which value each kind of program gets for the selected variable</source>
        <translation>Zeigt, welchen Wert jede Art von Programm für die ausgewählte Variable erhält</translation>
    </message>
</context>
<context>
    <name>ReachDialog</name>
    <message>
        <location filename="../gui/reach/reachdialog.cpp" line="+39"/>
        <source>no shell</source>
        <translation>keine Shell</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Where %1 takes effect</source>
        <translation>Wo %1 wirkt</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The value each kind of program gets at the next login, as the programs themselves work it out. The table has %1=%2.</source>
        <translation>Der Wert, den jede Art von Programm bei der nächsten Anmeldung erhält, so wie die Programme selbst ihn ermitteln. Die Tabelle hat %1=%2.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value at the next login</source>
        <translation>Wert bei der nächsten Anmeldung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Set in</source>
        <translation>Gesetzt in</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>As in the table</source>
        <translation>Wie in der Tabelle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Graphical programs</source>
        <translation>Grafische Programme</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Login shell (%1)</source>
        <translation>Login-Shell (%1)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Terminals</source>
        <translation>Terminals</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>SSH logins</source>
        <translation>SSH-Anmeldungen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Double-click a file to see every line that sets %1</source>
        <translation>Doppelklicken Sie auf eine Datei, um jede Zeile zu sehen, die %1 setzt</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Make it reach &amp;graphical programs</source>
        <translation>Für &amp;grafische Programme setzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Make it reach &amp;fish</source>
        <translation>Für &amp;fish setzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Make it reach &amp;zsh</source>
        <translation>Für &amp;zsh setzen</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>&amp;Write these lines</source>
        <translation>Diese Zeilen &amp;schreiben</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Apply to programs started from now on</source>
        <translation>Für ab jetzt gestartete Programme &amp;übernehmen</translation>
    </message>
    <message>
        <location line="+97"/>
        <source>working out...</source>
        <translation>wird ermittelt...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+4"/>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>environment.d read without the generator: %1</source>
        <translation>environment.d ohne den Generator gelesen: %1</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>%1 cannot be written into %2: %3</source>
        <translation>%1 kann nicht in %2 geschrieben werden: %3</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Writing changes these lines of %1:</source>
        <translation>Das Schreiben ändert diese Zeilen von %1:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Writing makes %1 with these lines:</source>
        <translation>Das Schreiben legt %1 mit diesen Zeilen an:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It takes effect at the next login; it cannot be applied now, because %1.</source>
        <translation>Es wirkt ab der nächsten Anmeldung; jetzt übernehmen geht nicht, weil: %1.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Couldn&apos;t write file %1: %2</source>
        <translation>Datei %1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 was written.</source>
        <translation>%1 wurde geschrieben.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>What it held before is kept as a copy (Restore...).</source>
        <translation>Der vorherige Inhalt bleibt als Kopie erhalten (Wiederherstellen...).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>No copy could be kept: %1.</source>
        <translation>Es konnte keine Kopie behalten werden: %1.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Programs started from now on get %1=%2. Programs already running and open terminals keep the value they have.</source>
        <translation>Ab jetzt gestartete Programme erhalten %1=%2. Bereits laufende Programme und offene Terminals behalten ihren Wert.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Couldn&apos;t apply it now: %1: %2</source>
        <translation>Konnte jetzt nicht übernommen werden: %1: %2</translation>
    </message>
</context>
<context>
    <name>ReachProcess</name>
    <message>
        <location filename="../core/reach/reachprocess.cpp" line="+69"/>
        <source>setsid was not found</source>
        <translation>setsid wurde nicht gefunden</translation>
    </message>
</context>
<context>
    <name>Restore</name>
    <message>
        <location filename="../core/save/restore.cpp" line="+25"/>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>it could not be read completely</source>
        <translation>sie konnte nicht vollständig gelesen werden</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>The copy %1 cannot be read: %2</source>
        <translation>Die Kopie %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 cannot be opened for writing: %2</source>
        <translation>%1 kann nicht zum Schreiben geöffnet werden: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <location filename="../gui/history/restorecommand.cpp" line="+18"/>
        <source>&amp;Restore...</source>
        <translation>Wieder&amp;herstellen...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Put back an earlier version of a start-up file</source>
        <translation>Eine frühere Fassung einer Startdatei zurückholen</translation>
    </message>
    <message>
        <location line="+27"/>
        <location line="+8"/>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Restoring reloads the table, so your unsaved changes are lost. Restore anyway?</source>
        <translation>Das Wiederherstellen lädt die Tabelle neu, Ihre ungespeicherten Änderungen gehen also verloren. Trotzdem wiederherstellen?</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 was restored from its copy of %2.</source>
        <translation>%1 wurde aus der Kopie vom %2 wiederhergestellt.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 was restored from its copy of %2; what it held before is kept as a copy.</source>
        <translation>%1 wurde aus der Kopie vom %2 wiederhergestellt; der bisherige Inhalt ist als Kopie aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <location filename="../gui/history/restoredialog.cpp" line="+34"/>
        <source>Restore an earlier version</source>
        <translation>Frühere Fassung wiederherstellen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The earlier copies cannot be listed: the folder %1 cannot be read: %2.</source>
        <translation>Die früheren Kopien können nicht aufgelistet werden: der Ordner %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>File and copy</source>
        <translation>Datei und Kopie</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>no copies</source>
        <translation>keine Kopien</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>No start-up file has earlier copies.</source>
        <translation>Von keiner Startdatei gibt es frühere Kopien.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Choose a copy of %1.</source>
        <translation>Wählen Sie eine Kopie von %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No earlier copies of %1 are kept. A copy is made each time a save or a restore rewrites the file.</source>
        <translation>Von %1 gibt es keine früheren Kopien. Eine Kopie entsteht jedes Mal, wenn Speichern oder Wiederherstellen die Datei neu schreibt.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The copy of %1 from %2 cannot be read: %3.</source>
        <translation>Die Kopie von %1 vom %2 kann nicht gelesen werden: %3.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 cannot be read now: %2.</source>
        <translation>%1 kann jetzt nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The copy from %1 is the same as %2 now.</source>
        <translation>Die Kopie vom %1 ist gleich %2, wie die Datei jetzt ist.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Restoring the copy from %1 changes these lines of %2:</source>
        <translation>Das Wiederherstellen der Kopie vom %1 ändert diese Zeilen von %2:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 does not exist now; restoring the copy from %2 makes it again.</source>
        <translation>%1 gibt es jetzt nicht; das Wiederherstellen der Kopie vom %2 legt sie wieder an.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (now)</source>
        <translation>%1 (jetzt)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (copy from %2)</source>
        <translation>%1 (Kopie vom %2)</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <location filename="../core/files/safefile.cpp" line="+30"/>
        <location filename="../core/variables/origins.cpp" line="+39"/>
        <source>it is not a regular file</source>
        <translation>sie ist keine reguläre Datei</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>it belongs to another user or has more than one name</source>
        <translation>sie gehört einem anderen Benutzer oder hat mehr als einen Namen</translation>
    </message>
    <message>
        <location filename="../core/files/backups.cpp" line="+10"/>
        <location filename="../core/files/safefile.cpp" line="+57"/>
        <source>it could not be read completely</source>
        <translation>sie konnte nicht vollständig gelesen werden</translation>
    </message>
    <message>
        <location filename="../core/files/safefile.cpp" line="+138"/>
        <source>another program changed it during the save</source>
        <translation>ein anderes Programm hat sie während des Speicherns geändert</translation>
    </message>
</context>
<context>
    <name>ShellCheck</name>
    <message>
        <location filename="../core/preview/shellcheck.cpp" line="+41"/>
        <source>csh files are not checked</source>
        <translation>csh-Dateien werden nicht geprüft</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 could not be started</source>
        <translation>%1 konnte nicht gestartet werden</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 did not finish within %2 seconds</source>
        <translation>%1 wurde nicht innerhalb von %2 Sekunden fertig</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1 -n: the file still parses.</source>
        <translation>%1 -n: die Datei ist weiterhin syntaktisch korrekt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 -n: the file would not parse, and does not parse now either: %2</source>
        <translation>%1 -n: die Datei wäre syntaktisch fehlerhaft, und sie ist es auch jetzt schon: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 -n: the file would no longer parse: %2</source>
        <translation>%1 -n: die Datei wäre nicht mehr syntaktisch korrekt: %2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Not checked whether the file still parses: %1.</source>
        <translation>Nicht geprüft, ob die Datei syntaktisch korrekt bleibt: %1.</translation>
    </message>
</context>
<context>
    <name>ShellProbe</name>
    <message>
        <location filename="../core/reach/shellprobe.cpp" line="+127"/>
        <source>%1 is not a valid variable name</source>
        <translation>%1 ist kein gültiger Variablenname</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 is not a shell this program knows how to ask (bash, sh, dash, zsh, fish, csh and tcsh are)</source>
        <translation>%1 ist keine Shell, die dieses Programm zu fragen weiß (bash, sh, dash, zsh, fish, csh und tcsh sind es)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 is not installed: %2 was not found</source>
        <translation>%1 ist nicht installiert: %2 wurde nicht gefunden</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 cannot be run: %2 is not a program</source>
        <translation>%1 kann nicht ausgeführt werden: %2 ist kein Programm</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 cannot be asked: printenv, printf or bash was not found</source>
        <translation>%1 kann nicht gefragt werden: printenv, printf oder bash wurde nicht gefunden</translation>
    </message>
    <message>
        <location line="+93"/>
        <source>%1 did not finish in %2 seconds: a start-up file may wait for input</source>
        <translation>%1 wurde nicht in %2 Sekunden fertig: eine Startdatei wartet vielleicht auf eine Eingabe</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 printed more than 1 MiB while starting, so it was stopped</source>
        <translation>%1 gab beim Start mehr als 1 MiB aus und wurde daher beendet</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 was killed by signal %2 before it printed the variable</source>
        <translation>%1 wurde durch das Signal %2 beendet, bevor sie die Variable ausgab</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>printenv could not print %1 in %2</source>
        <translation>printenv konnte %1 in %2 nicht ausgeben</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 exited with status %2 before it printed the variable</source>
        <translation>%1 endete mit dem Status %2, bevor sie die Variable ausgab</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 ended without printing the variable: a start-up file may end it with exec or exit</source>
        <translation>%1 endete, ohne die Variable auszugeben: eine Startdatei beendet sie vielleicht mit exec oder exit</translation>
    </message>
</context>
<context>
    <name>SideEffects</name>
    <message>
        <location filename="../core/preview/sideeffects.cpp" line="+62"/>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>changes %1 to %2</source>
        <translation>ändert %1 auf %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>removes %1</source>
        <translation>entfernt %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rewrites the commented-out line %1 of %2</source>
        <translation>schreibt die auskommentierte Zeile %1 von %2 neu</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>line %1 of %2</source>
        <translation>Zeile %1 von %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>rewrites the commented-out %1</source>
        <translation>schreibt die auskommentierten Zeilen neu: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>This save also %1.</source>
        <translation>Dieses Speichern %1 außerdem.</translation>
    </message>
</context>
<context>
    <name>Surprises</name>
    <message>
        <location filename="../core/preview/surprises.cpp" line="+58"/>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <location line="+158"/>
        <source>%1 also changes.</source>
        <translation>%1 ändert sich auch.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 also change.</source>
        <translation>%1 ändern sich auch.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A commented-out line changes: line %1.</source>
        <translation>Eine auskommentierte Zeile ändert sich: Zeile %1.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Commented-out lines change: lines %1.</source>
        <translation>Auskommentierte Zeilen ändern sich: Zeilen %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Line %1 loses &quot;%2&quot;, which follows the value of %3.</source>
        <translation>Zeile %1 verliert „%2“, das auf den Wert von %3 folgt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is saved into no line of its own: this file will not set it.</source>
        <translation>%1 wird in keine eigene Zeile gespeichert: diese Datei wird sie nicht setzen.</translation>
    </message>
</context>
<context>
    <name>SysrootCommand</name>
    <message>
        <location filename="../core/reach/sysrootcommand.cpp" line="+58"/>
        <source>%1 cannot run with the system folders of %2: %3 was not found</source>
        <translation>%1 kann nicht mit den Systemordnern von %2 laufen: %3 wurde nicht gefunden</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 cannot run with the system folders of %2: this system has no folder %3 to put %4 over</source>
        <translation>%1 kann nicht mit den Systemordnern von %2 laufen: dieses System hat keinen Ordner %3, über den %4 gelegt werden könnte</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>%1 cannot run with the system folders of %2: %3</source>
        <translation>%1 kann nicht mit den Systemordnern von %2 laufen: %3</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <location filename="../gui/window/toolsmenu.cpp" line="+12"/>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
</context>
<context>
    <name>UserManager</name>
    <message>
        <location filename="../core/reach/usermanager.cpp" line="+21"/>
        <location line="+40"/>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
    <message>
        <location line="-31"/>
        <source>%1 did not finish in %2 seconds</source>
        <translation>%1 ist nicht in %2 Sekunden fertig geworden</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 failed with status %2</source>
        <translation>%1 ist mit Status %2 fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>not asked yet</source>
        <translation>noch nicht gefragt</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>no systemd user manager answers: %1</source>
        <translation>kein systemd-Benutzerdienst antwortet: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>systemctl --user failed</source>
        <translation>systemctl --user ist fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>WhereSet</name>
    <message>
        <location filename="../core/lookup/whereset.cpp" line="+131"/>
        <source>cannot be read: it is not a regular file</source>
        <translation>nicht lesbar: keine reguläre Datei</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+5"/>
        <source>cannot be read: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>No start-up file that a login reads sets %1</source>
        <translation>Keine Startdatei, die bei der Anmeldung gelesen wird, setzt %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 sets `%2`, which the shell works out at login; this session does not have %3</source>
        <translation>%1 setzt `%2`, was die Shell erst bei der Anmeldung auswertet; diese Sitzung hat %3 nicht</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 sets `%2`, which the shell works out at login; this session has `%3`</source>
        <translation>%1 setzt `%2`, was die Shell erst bei der Anmeldung auswertet; diese Sitzung hat `%3`</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 sets `%2`, the value this session has</source>
        <translation>%1 setzt `%2`, den Wert, den diese Sitzung hat</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 sets `%2`; this session does not have %3: the saved value takes effect at the next login</source>
        <translation>%1 setzt `%2`; diese Sitzung hat %3 nicht: der gespeicherte Wert gilt ab der nächsten Anmeldung</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 sets `%2`; this session does not have %3: log in again to use the file&apos;s value</source>
        <translation>%1 setzt `%2`; diese Sitzung hat %3 nicht: melden Sie sich neu an, um den Wert der Datei zu verwenden</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 sets `%2`; this session has `%3`: the saved value takes effect at the next login</source>
        <translation>%1 setzt `%2`; diese Sitzung hat `%3`: der gespeicherte Wert gilt ab der nächsten Anmeldung</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 sets `%2`; this session has `%3`: log in again to use the file&apos;s value</source>
        <translation>%1 setzt `%2`; diese Sitzung hat `%3`: melden Sie sich neu an, um den Wert der Datei zu verwenden</translation>
    </message>
</context>
<context>
    <name>WhereSetCommand</name>
    <message>
        <location filename="../gui/lookup/wheresetcommand.cpp" line="+18"/>
        <source>&amp;Where is it set?...</source>
        <translation>&amp;Wo wird sie gesetzt?...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show every line of the start-up files that sets the selected variable</source>
        <translation>Jede Zeile der Startdateien zeigen, die die ausgewählte Variable setzt</translation>
    </message>
</context>
<context>
    <name>WhereSetDialog</name>
    <message>
        <location filename="../gui/lookup/wheresetdialog.cpp" line="+15"/>
        <source>Where is %1 set?</source>
        <translation>Wo wird %1 gesetzt?</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>In this session: %1=%2</source>
        <translation>In dieser Sitzung: %1=%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This session does not have %1</source>
        <translation>Diese Sitzung hat %1 nicht</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>commented out</source>
        <translation>auskommentiert</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>exports it, sets no value</source>
        <translation>exportiert sie, setzt keinen Wert</translation>
    </message>
</context>
<context>
    <name>preferencesDialog</name>
    <message>
        <location filename="../resources/preferencesdialog.ui"/>
        <location filename="../gui/dialogs/preferencesdialog.cpp" line="+33"/>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location/>
        <source>System Config Files</source>
        <translation>Systemweite Konfigurationsdateien</translation>
    </message>
    <message>
        <location/>
        <source>User Config Files</source>
        <translation>Konfigurationsdateien des Benutzers</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected system file up</source>
        <translation>Die gewählte Systemdatei nach oben schieben</translation>
    </message>
    <message>
        <location/>
        <source>Move system file up</source>
        <translation>Systemdatei nach oben</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected system file down</source>
        <translation>Die gewählte Systemdatei nach unten schieben</translation>
    </message>
    <message>
        <location/>
        <source>Move system file down</source>
        <translation>Systemdatei nach unten</translation>
    </message>
    <message>
        <location/>
        <source>Add a system file to scan</source>
        <translation>Eine zu durchsuchende Systemdatei hinzufügen</translation>
    </message>
    <message>
        <location/>
        <source>Add system file</source>
        <translation>Systemdatei hinzufügen</translation>
    </message>
    <message>
        <location/>
        <source>Remove the selected system file from the list</source>
        <translation>Die gewählte Systemdatei aus der Liste entfernen</translation>
    </message>
    <message>
        <location/>
        <source>Remove system file</source>
        <translation>Systemdatei entfernen</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected user file up</source>
        <translation>Die gewählte Benutzerdatei nach oben schieben</translation>
    </message>
    <message>
        <location/>
        <source>Move user file up</source>
        <translation>Benutzerdatei nach oben</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected user file down</source>
        <translation>Die gewählte Benutzerdatei nach unten schieben</translation>
    </message>
    <message>
        <location/>
        <source>Move user file down</source>
        <translation>Benutzerdatei nach unten</translation>
    </message>
    <message>
        <location/>
        <source>Add a user file to scan</source>
        <translation>Eine zu durchsuchende Benutzerdatei hinzufügen</translation>
    </message>
    <message>
        <location/>
        <source>Add user file</source>
        <translation>Benutzerdatei hinzufügen</translation>
    </message>
    <message>
        <location/>
        <source>Remove the selected user file from the list</source>
        <translation>Die gewählte Benutzerdatei aus der Liste entfernen</translation>
    </message>
    <message>
        <location/>
        <source>Remove user file</source>
        <translation>Benutzerdatei entfernen</translation>
    </message>
</context>
<context>
    <name>uEditor</name>
    <message>
        <location filename="../resources/ueditor.ui"/>
        <location filename="../gui/dialogs/ueditor.cpp" line="+86"/>
        <source>Edit variable</source>
        <translation>Variable bearbeiten</translation>
    </message>
    <message>
        <location/>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <location/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location/>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <location/>
        <source>Critical system variable</source>
        <translation>Kritische Systemvariable</translation>
    </message>
    <message>
        <location/>
        <source>Save in system directory /etc/</source>
        <translation>Im Systemverzeichnis /etc/ speichern</translation>
    </message>
    <message>
        <location filename="../gui/dialogs/ueditor.cpp" line="-52"/>
        <location line="+51"/>
        <source>orv-adm-env</source>
        <translation>orv-adm-env</translation>
    </message>
    <message>
        <location line="-50"/>
        <source>Create new variable</source>
        <translation>Neue Variable anlegen</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Enter new variable&apos;s name here...</source>
        <translation>Namen der neuen Variable hier eingeben...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter new variable&apos;s value here...</source>
        <translation>Wert der neuen Variable hier eingeben...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter comments here...</source>
        <translation>Kommentar hier eingeben...</translation>
    </message>
</context>
</TS>
