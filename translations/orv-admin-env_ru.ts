<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Backups</name>
    <message>
        <location filename="../core/files/backups.cpp" line="+271"/>
        <source>it is not in the folder of copies</source>
        <translation>она находится не в папке копий</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>it is a symbolic link</source>
        <translation>это символическая ссылка</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>it is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>it belongs to another user</source>
        <translation>она принадлежит другому пользователю</translation>
    </message>
</context>
<context>
    <name>BackupsTool</name>
    <message>
        <location filename="../cli/backups/backupstool.cpp" line="+23"/>
        <source>Cannot read the folder of copies %1: %2
</source>
        <translation>Не удаётся прочитать папку копий %1: %2
</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>No copies are kept in %1.
</source>
        <translation>В %1 нет копий.
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No copies of %1 are kept in %2.
</source>
        <translation>В %2 нет копий %1.
</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 is not the name of a copy; &quot;list&quot; shows them.
</source>
        <translation>%1 — не имя копии; их показывает «list».
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 is not a copy that can be used: %2
</source>
        <translation>%1 — не копия, которую можно использовать: %2
</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The copy %1 cannot be read: %2
</source>
        <translation>Не удаётся прочитать копию %1: %2
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 cannot be read: %2
</source>
        <translation>Не удаётся прочитать %1: %2
</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 is the same as the copy.
</source>
        <translation>%1 совпадает с копией.
</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Restored %1 from its copy of %2.
</source>
        <translation>%1 восстановлен из копии от %2.
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>What it held before is kept in %1.
</source>
        <translation>Прежнее содержимое сохранено в %1.
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
        <translation>Использование: orv-admin-env-backups list [ФАЙЛ]
               orv-admin-env-backups diff КОПИЯ
               orv-admin-env-backups restore КОПИЯ

Показывает, сравнивает и восстанавливает копии, которые редактор переменных
окружения сохраняет перед каждой перезаписью файла запуска.

  list [ФАЙЛ]     копии, сначала новые, по одной в строке: время, размер в
                  байтах, файл запуска и копия, через табуляцию; если ФАЙЛ
                  указан, то только его копии
  diff КОПИЯ      что изменит в своём файле восстановление КОПИИ
                  (унифицированный diff)
  restore КОПИЯ   записывает КОПИЮ обратно в её файл на месте, сохранив перед
                  этим копию файла в нынешнем виде, так что восстановление
                  тоже можно отменить
  --help          этот текст

КОПИЯ — имя копии в том виде, в каком его выводит list, или путь к копии.
Копии хранятся в %1.

Код возврата: 0 готово, 1 копию, файл или папку копий не удаётся прочитать,
2 неверные аргументы, 3 файл восстановить не удалось (он остался прежним).
</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Wrong arguments.
</source>
        <translation>Неверные аргументы.
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown command: %1
</source>
        <translation>Неизвестная команда: %1
</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Try &quot;orv-admin-env-backups --help&quot;.
</source>
        <translation>Попробуйте «orv-admin-env-backups --help».
</translation>
    </message>
</context>
<context>
    <name>ChangePreview</name>
    <message>
        <location filename="../core/preview/changepreview.cpp" line="+17"/>
        <source>The value of %1 cannot be written into a start-up file: %2. The save will write nothing.</source>
        <translation>Значение %1 нельзя записать в файл запуска: %2. Сохранение ничего не запишет.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 is saved into %2, because its file %3 cannot be opened: %4.</source>
        <translation>%1 будет сохранена в %2, потому что её файл %3 не удаётся открыть: %4.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The save will stop at %1: %2 cannot be opened: %3. Nothing after it is saved and no variable is deleted.</source>
        <translation>Сохранение остановится на %1: не удаётся открыть %2: %3. Ничего после неё не будет сохранено, и ни одна переменная не будет удалена.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 cannot be deleted: its file %2 cannot be opened: %3.</source>
        <translation>%1 не удастся удалить: её файл %2 не удаётся открыть: %3.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1 line %2 refers to %3; the save writes %4 instead.</source>
        <translation>%1, строка %2 ссылается на %3; сохранение запишет вместо этого %4.</translation>
    </message>
</context>
<context>
    <name>DotEnv</name>
    <message>
        <location filename="../core/export/dotenv.cpp" line="+32"/>
        <source>line %1: %2</source>
        <translation>строка %1: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not NAME=VALUE</source>
        <translation>не NAME=VALUE</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>the double quote is not closed</source>
        <translation>двойная кавычка не закрыта</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the single quote is not closed</source>
        <translation>одинарная кавычка не закрыта</translation>
    </message>
</context>
<context>
    <name>EnvTool</name>
    <message>
        <location filename="../cli/env/envtool.cpp" line="+53"/>
        <source>Try &quot;orv-admin-env-cli --help&quot;.
</source>
        <translation>Попробуйте &quot;orv-admin-env-cli --help&quot;.
</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+185"/>
        <source>%1 cannot be read: %2
</source>
        <translation>%1 нельзя прочитать: %2
</translation>
    </message>
    <message>
        <location line="-134"/>
        <source>unset needs a NAME</source>
        <translation>unset нужно ИМЯ</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+96"/>
        <location line="+107"/>
        <source>%1 is not a variable of this session</source>
        <translation>%1 — не переменная этого сеанса</translation>
    </message>
    <message>
        <location line="-198"/>
        <source>Expected &quot;set NAME VALUE&quot; or &quot;unset NAME&quot;, not &quot;%1&quot;</source>
        <translation>Ожидалось &quot;set NAME VALUE&quot; или &quot;unset NAME&quot;, а не &quot;%1&quot;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is not a variable name: letters, digits and &quot;_&quot;, not starting with a digit</source>
        <translation>%1 — не имя переменной: буквы, цифры и &quot;_&quot;, не начиная с цифры</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Unknown option: %1</source>
        <translation>Неизвестный параметр: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>--system: only a root session writes the system-wide start-up file</source>
        <translation>--system: общесистемный файл запуска записывает только сеанс root</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>The value of %1 cannot be written into a start-up file: %2. Nothing was saved.</source>
        <translation>Значение %1 нельзя записать в файл запуска: %2. Ничего не сохранено.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Nothing was saved: run again with --yes to save anyway, or with --dry-run to see every line it changes.
</source>
        <translation>Ничего не сохранено: запустите снова с --yes, чтобы всё равно сохранить, или с --dry-run, чтобы увидеть каждую изменяемую строку.
</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1: cannot save %2: %3
</source>
        <translation>%1: нельзя сохранить %2: %3
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saved %1 without a copy: %2
</source>
        <translation>%1 сохранён без копии: %2
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saved %1
</source>
        <translation>Сохранён %1
</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>export --format ansible needs the NAMEs to set</source>
        <translation>export --format ansible нужны ИМЕНА задаваемых переменных</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Unknown format: %1</source>
        <translation>Неизвестный формат: %1</translation>
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
        <translation>Использование: orv-admin-env-cli list [--json]
       orv-admin-env-cli get NAME
       orv-admin-env-cli where NAME
       orv-admin-env-cli [--dry-run] [--yes] set NAME VALUE [--system]
                         [--description TEXT] [--critical] [set ...] [unset NAME]
       orv-admin-env-cli [--dry-run] [--yes] unset NAME [set ...] [unset ...]
       orv-admin-env-cli export --format env|json|ansible [NAME...]
       orv-admin-env-cli [--dry-run] [--yes] import FILE.env
       orv-admin-env-cli backups list|diff|restore ...

Редактор переменных окружения из командной строки: те же переменные, файлы
запуска, правила и надёжное сохранение, что и в его окне.

  list         переменные этого сеанса: имя, значение, файл-источник,
               описание и &quot;critical&quot; через табуляцию (--json: JSON)
  get NAME     значение переменной
  where NAME   каждая строка файлов запуска, задающая её, по одной на строку
  set, unset   изменения, сколько угодно, записываются одним сохранением
  export       переменные строками .env, в JSON или как плейбук Ansible,
               который делает то же изменение на любой машине
  import       задаёт каждое NAME=VALUE из файла .env одним сохранением
  backups      копии файлов запуска (см. orv-admin-env-backups)
  --dry-run    печатает унифицированный diff каждого файла, который запишет сохранение,
               и предупреждения в поток ошибок; ничего не записывает
  --yes        сохраняет, даже если сохранение меняет и неназванные переменные
  --help       этот текст

Код возврата: 0 готово, 1 файл не удалось прочитать или записать (в нём ничего
не изменено), 2 неверные аргументы или отклонённое изменение.
</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>No command given.</source>
        <translation>Команда не указана.</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Wrong arguments for %1.</source>
        <translation>Неверные аргументы для %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unknown command: %1</source>
        <translation>Неизвестная команда: %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDFormat</name>
    <message>
        <location filename="../core/reach/environmentdformat.cpp" line="+9"/>
        <source>%1 is not a variable name environment.d accepts</source>
        <translation>%1 — не имя переменной, которое принимает environment.d</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>environment.d cannot set a variable to an empty value</source>
        <translation>environment.d не может задать переменной пустое значение</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>environment.d cannot hold a value with a line break</source>
        <translation>environment.d не может хранить значение с переводом строки</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>environment.d cannot pass on a value with a tab or another control character as it is</source>
        <translation>environment.d не может передать без изменений значение с табуляцией или другим управляющим символом</translation>
    </message>
</context>
<context>
    <name>EtcEnvironment</name>
    <message>
        <location filename="../core/reach/etcenvironment.cpp" line="+56"/>
        <source>%1 cannot be read: it is not a regular file</source>
        <translation>не удаётся прочитать %1: это не обычный файл</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+3"/>
        <source>%1 cannot be read: %2</source>
        <translation>не удаётся прочитать %1: %2</translation>
    </message>
</context>
<context>
    <name>Eve</name>
    <message>
        <location filename="../gui/app/eve.cpp" line="+96"/>
        <source>Orv environment variable editor</source>
        <translation>Редактор переменных окружения Orv</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Orv env editor</source>
        <translation>Редактор окружения Orv</translation>
    </message>
    <message>
        <location line="+150"/>
        <source>Help Dump</source>
        <translation>Вывод справки</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Apply changes now?</source>
        <translation>Применить изменения сейчас?</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Do you want to save data and apply changes now?</source>
        <translation>Сохранить данные и применить изменения сейчас?</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>New settings have been applied!</source>
        <translation>Новые настройки применены!</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Save anyway</source>
        <translation>Всё равно сохранить</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Preview...</source>
        <translation>Просмотр...</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Changes were saved successfully!</source>
        <translation>Изменения успешно сохранены!</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes were saved</source>
        <translation>Изменения сохранены</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Changes were saved and will be applied after restarting a session!</source>
        <translation>Изменения сохранены и вступят в силу после перезапуска сеанса!</translation>
    </message>
    <message>
        <location line="-22"/>
        <location line="+26"/>
        <location line="+91"/>
        <location line="+19"/>
        <source>Attention!</source>
        <translation>Внимание!</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Unable to save changes - file access denied!</source>
        <translation>Не удалось сохранить изменения - доступ к файлу запрещён!</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>All changes were reseted!</source>
        <translation>Все изменения отменены!</translation>
    </message>
    <message>
        <location line="+70"/>
        <source>Changes are not saved!</source>
        <translation>Изменения не сохранены!</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Do you want to save your changes?
 (Changes will be applied after restarting a session)</source>
        <translation>Сохранить изменения?
 (Изменения вступят в силу после перезапуска сеанса)</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Do you really want to reset?</source>
        <translation>Вы действительно хотите сбросить изменения?</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Do you really want to delete SYSTEM variable located at file 
</source>
        <translation>Вы действительно хотите удалить СИСТЕМНУЮ переменную, находящуюся в файле 
</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Do you really want to delete a variable?</source>
        <translation>Вы действительно хотите удалить переменную?</translation>
    </message>
</context>
<context>
    <name>EveModel</name>
    <message>
        <location filename="../core/variables/catalogue.cpp" line="+23"/>
        <source>The current user&apos;s home directory; the default for the cd built-in. The value of this variable is also used by tilde expansion.</source>
        <translation>Домашний каталог текущего пользователя; каталог по умолчанию для встроенной команды cd. Значение этой переменной также используется при раскрытии тильды.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Your logname</source>
        <translation>Ваше имя для входа в систему</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Your shell</source>
        <translation>Ваша командная оболочка</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A colon-separated list of directories used as a search path for the cd built-in command.</source>
        <translation>Список каталогов через двоеточие, используемый как путь поиска для встроенной команды cd.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>A list of characters that separate fields; used when the shell splits words as part of expansion.</source>
        <translation>Список символов-разделителей полей; используется, когда оболочка разбивает текст на слова при раскрытии.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>If this parameter is set to a file name and the MAILPATH variable is not set, Bash informs the user of the arrival of mail in the specified file.</source>
        <translation>Если в этом параметре задано имя файла, а переменная MAILPATH не задана, Bash сообщает пользователю о поступлении почты в указанный файл.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>A colon-separated list of file names which the shell periodically checks for new mail.</source>
        <translation>Список имён файлов через двоеточие, которые оболочка периодически проверяет на наличие новой почты.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The value of the last option argument processed by the getopts built-in.</source>
        <translation>Значение последнего аргумента опции, обработанного встроенной командой getopts.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The index of the last option argument processed by the getopts built-in.</source>
        <translation>Индекс последнего аргумента опции, обработанного встроенной командой getopts.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>A colon-separated list of directories in which the shell looks for commands.</source>
        <translation>Список каталогов через двоеточие, в которых оболочка ищет команды.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The primary prompt string.</source>
        <translation>Основная строка приглашения.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The secondary prompt string.</source>
        <translation>Вторичная строка приглашения.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The full pathname used to execute the current instance of Bash.</source>
        <translation>Полный путь, по которому был запущен текущий экземпляр Bash.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>If this variable is set when Bash is invoked to execute a shell script, its value is expanded and used as the name of a startup file to read before executing the script.</source>
        <translation>Если эта переменная задана при запуске Bash для выполнения сценария, её значение раскрывается и используется как имя файла запуска, который читается перед выполнением сценария.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The version number of the current instance of Bash.</source>
        <translation>Номер версии текущего экземпляра Bash.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A read-only array variable whose members hold version information for this instance of Bash.</source>
        <translation>Массив только для чтения, элементы которого содержат сведения о версии этого экземпляра Bash.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Used by the select built-in to determine the terminal width when printing selection lists. Automatically set upon receipt of a SIGWINCH signal.</source>
        <translation>Используется встроенной командой select для определения ширины терминала при выводе списков выбора. Устанавливается автоматически при получении сигнала SIGWINCH.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>An index into ${COMP_WORDS} of the word containing the current cursor position.</source>
        <translation>Индекс в ${COMP_WORDS} слова, в котором находится текущая позиция курсора.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The current command line.</source>
        <translation>Текущая командная строка.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The numeric, real user ID of the current user.</source>
        <translation>Числовой реальный идентификатор текущего пользователя.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Incremented by one each time a new instance of Bash is started.</source>
        <translation>Увеличивается на единицу при каждом запуске нового экземпляра Bash.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A colon-separated list of enabled shell options.</source>
        <translation>Список включённых опций оболочки через двоеточие.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The default variable for the read built-in.</source>
        <translation>Переменная по умолчанию для встроенной команды read.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>GHOSTSCRIPT library.</source>
        <translation>Библиотека GHOSTSCRIPT.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The value of this parameter is used as a format string specifying how the timing information for pipelines prefixed with the time reserved word should be displayed.</source>
        <translation>Значение этого параметра используется как строка формата, определяющая, как выводить сведения о времени выполнения для конвейеров, перед которыми стоит зарезервированное слово time.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Each time this parameter is referenced, a random integer between 0 and 32767 is generated. Assigning a value to this variable seeds the random number generator.</source>
        <translation>При каждом обращении к этому параметру генерируется случайное целое число от 0 до 32767. Присваивание значения этой переменной инициализирует генератор случайных чисел.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The current working directory as set by the cd built-in command.</source>
        <translation>Текущий рабочий каталог, установленный встроенной командой cd.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>If set, the value is interpreted as a command to execute before the printing of each primary prompt (PS1).</source>
        <translation>Если задана, значение интерпретируется как команда, выполняемая перед выводом каждого основного приглашения (PS1).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The process ID of the shell&apos;s parent process.</source>
        <translation>Идентификатор родительского процесса оболочки.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A string describing the operating system Bash is running on.</source>
        <translation>Строка с описанием операционной системы, в которой работает Bash.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Used to determine the locale category for any category not specifically selected with a variable starting with LC_.</source>
        <translation>Определяет категорию локали для всех категорий, не заданных явно переменной, начинающейся с LC_.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>This variable overrides the value of LANG and any other LC_ variable specifying a locale category.</source>
        <translation>Эта переменная переопределяет значение LANG и всех остальных переменных LC_, задающих категорию локали.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The name of the current host.</source>
        <translation>Имя текущего узла.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Defines whether a command is added to the history file.</source>
        <translation>Определяет, добавляется ли команда в файл истории.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Username.</source>
        <translation>Имя пользователя.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Holds the agent&apos;s process ID.</source>
        <translation>Содержит идентификатор процесса агента.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stores the desktop name.. kde, gnome or something else.</source>
        <translation>Хранит название рабочего стола.. kde, gnome или другое.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>XDG_SESSION_COOKIE: Variable set by XDG_Utils package.</source>
        <translation>XDG_SESSION_COOKIE: переменная, устанавливаемая пакетом XDG_Utils.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>XDG_DATA_DIRS: Determines paths for directories used by XDG_Utils.</source>
        <translation>XDG_DATA_DIRS: задаёт пути к каталогам, используемым XDG_Utils.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>XCURSOR_THEME: Determines cursor theme.</source>
        <translation>XCURSOR_THEME: задаёт тему курсора.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>XAUTHORITY: Path to file contains user cookies for authorization on X-Server.</source>
        <translation>XAUTHORITY: путь к файлу с cookie пользователя для авторизации на X-сервере.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>WINDOWPATH: Set by X-server.</source>
        <translation>WINDOWPATH: устанавливается X-сервером.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>WINDOWID: Set by X-server, Id of window.</source>
        <translation>WINDOWID: устанавливается X-сервером, идентификатор окна.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USERNAME: Name of logined user.</source>
        <translation>USERNAME: имя вошедшего в систему пользователя.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>TERM: Determines method of screen clearing, cursor moving etc, use by many programs.</source>
        <translation>TERM: определяет способ очистки экрана, перемещения курсора и т. п., используется многими программами.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>SSH_AUTH_SOCK: Variable set by SSH, use for determine method of connection to active SSH agent.</source>
        <translation>SSH_AUTH_SOCK: переменная, устанавливаемая SSH, определяет способ подключения к активному агенту SSH.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>SESSION_MANAGER: Location of socket using for X-session.</source>
        <translation>SESSION_MANAGER: расположение сокета, используемого X-сеансом.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>OLDPWD: Previous work dir set by cd command.</source>
        <translation>OLDPWD: предыдущий рабочий каталог, установленный командой cd.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>LS_COLORS: Information about color scheme used with ls command.</source>
        <translation>LS_COLORS: сведения о цветовой схеме, используемой командой ls.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>LANGUAGE: May contain information about language.</source>
        <translation>LANGUAGE: может содержать сведения о языке.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ID of instance of Midnight Commander.</source>
        <translation>Идентификатор экземпляра Midnight Commander.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>LANG: Determines desirable locale.</source>
        <translation>LANG: задаёт предпочитаемую локаль.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>KONSOLE_DCOP_SESSION: Variable set by Konsole Terminal Emulator.</source>
        <translation>KONSOLE_DCOP_SESSION: переменная, устанавливаемая эмулятором терминала Konsole.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>KONSOLE_DCOP: Variable set by Konsole Terminal Emulator, used for Desktop COmmunication Protocol needs.</source>
        <translation>KONSOLE_DCOP: переменная, устанавливаемая эмулятором терминала Konsole, используется для нужд протокола DCOP (Desktop COmmunication Protocol).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>KDE_MULTIHEAD: Variable set by KDE.</source>
        <translation>KDE_MULTIHEAD: переменная, устанавливаемая KDE.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>KDE_SESSION_UID: Variable set by KDE.</source>
        <translation>KDE_SESSION_UID: переменная, устанавливаемая KDE.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>KDE_FULL_SESSION: Variable set by KDE.</source>
        <translation>KDE_FULL_SESSION: переменная, устанавливаемая KDE.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GTK_RC_FILES: Variable set by GTK (Gimp Toolkit Library).</source>
        <translation>GTK_RC_FILES: переменная, устанавливаемая GTK (библиотека Gimp Toolkit).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GTK2_RC_FILES: Variable set by GTK (Gimp Toolkit Library).</source>
        <translation>GTK2_RC_FILES: переменная, устанавливаемая GTK (библиотека Gimp Toolkit).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GDMSESSION: Contains basename of .desktop file using in current session.</source>
        <translation>GDMSESSION: содержит базовое имя файла .desktop, используемого в текущем сеансе.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>GDM_XSERVER_LOCATION: Location of X-Server for Gnome Display Manager.</source>
        <translation>GDM_XSERVER_LOCATION: расположение X-сервера для Gnome Display Manager.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>GDM_LANG: Language for Gnome Display Manager.</source>
        <translation>GDM_LANG: язык для Gnome Display Manager.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DISPLAY: Contains address of computer, where additional window must be opened.</source>
        <translation>DISPLAY: содержит адрес компьютера, на котором должны открываться окна.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>DESKTOP_STARTUP_ID: For interprocess (launcher and launchee) information exchange.</source>
        <translation>DESKTOP_STARTUP_ID: для межпроцессного обмена информацией (между запускающим и запускаемым процессами).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Additional property of terminal emulator.</source>
        <translation>Дополнительное свойство эмулятора терминала.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temp directory for Midnight Commander needs.</source>
        <translation>Временный каталог для нужд Midnight Commander.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Since KDE4 contains the major version number.</source>
        <translation>Начиная с KDE4 содержит основной номер версии.</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="+22"/>
        <source>Variable</source>
        <translation>Переменная</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Origin</source>
        <translation>Источник</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <location filename="../gui/model/criticalchange.cpp" line="+9"/>
        <source>Request of confirmation</source>
        <translation>Запрос подтверждения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Really change the value of system variable?</source>
        <translation>Действительно изменить значение системной переменной?</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="+245"/>
        <source>__new__</source>
        <translation>__new__</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>VALUE</source>
        <translation>ЗНАЧЕНИЕ</translation>
    </message>
    <message>
        <location filename="../core/variables/variabletable.cpp" line="+24"/>
        <location filename="../gui/model/evemodel.cpp" line="-201"/>
        <location line="+34"/>
        <location line="+167"/>
        <location line="+14"/>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="-198"/>
        <source>Couldn&apos;t open file: %1 !</source>
        <translation>Не удалось открыть файл: %1 !</translation>
    </message>
    <message>
        <location filename="../core/save/commit.cpp" line="+26"/>
        <source>Its content from before the save is kept in %1.</source>
        <translation>Его содержимое до сохранения находится в %1.</translation>
    </message>
    <message>
        <location filename="../gui/model/evemodel.cpp" line="+52"/>
        <location line="+3"/>
        <source>Warning!</source>
        <translation>Предупреждение!</translation>
    </message>
    <message>
        <location line="-22"/>
        <source>Couldn&apos;t write file %1 for saving variable %2: %3</source>
        <translation>Не удалось записать файл %1 для сохранения переменной %2: %3</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Couldn&apos;t open file %1 for saving variable %2</source>
        <translation>Не удалось открыть файл %1 для сохранения переменной %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Couldn&apos;t open file %1 for deleting variable %2</source>
        <translation>Не удалось открыть файл %1 для удаления переменной %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The value of %1 cannot be written into a start-up file: %2. Nothing was saved.</source>
        <translation>Значение %1 нельзя записать в файл запуска: %2. Ничего не сохранено.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Couldn&apos;t write file %1 for deleting variable %2: %3</source>
        <translation>Не удалось записать файл %1 для удаления переменной %2: %3</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Saved %1 without a copy: %2</source>
        <translation>%1 сохранён без копии: %2</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <location filename="../gui/lookup/filterbar.cpp" line="+24"/>
        <source>Filter variables</source>
        <translation>Фильтр переменных</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shows only the variables whose name, value or description contain this text (Ctrl+F)</source>
        <translation>Показывает только переменные, имя, значение или описание которых содержит этот текст (Ctrl+F)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Filter variables</source>
        <translation>&amp;Фильтр переменных</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>%1 of %2 variables</source>
        <translation>Переменные: %1 из %2</translation>
    </message>
</context>
<context>
    <name>FishFormat</name>
    <message>
        <location filename="../core/reach/fishformat.cpp" line="+52"/>
        <source>%1 is not a variable name fish accepts</source>
        <translation>%1 — не имя переменной, которое принимает fish</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>fish cannot hold a value with a NUL character</source>
        <translation>fish не может хранить значение с символом NUL</translation>
    </message>
</context>
<context>
    <name>GeneratorProbe</name>
    <message>
        <location filename="../core/reach/generatorprobe.cpp" line="+16"/>
        <source>the systemd environment generator</source>
        <translation>генератор окружения systemd</translation>
    </message>
    <message>
        <location line="+93"/>
        <source>the systemd environment generator is not installed: %1 was not found</source>
        <translation>генератор окружения systemd не установлен: %1 не найден</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>the systemd environment generator did not finish in %1 seconds</source>
        <translation>генератор окружения systemd не завершился за %1 с</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the systemd environment generator printed more than 1 MiB, so it was stopped</source>
        <translation>генератор окружения systemd вывел больше 1 МиБ, поэтому он был остановлен</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>the systemd environment generator could not be started: %1</source>
        <translation>не удалось запустить генератор окружения systemd: %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>the systemd environment generator was killed by signal %1</source>
        <translation>генератор окружения systemd был завершён сигналом %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>the systemd environment generator exited with status %1</source>
        <translation>генератор окружения systemd завершился с кодом %1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the systemd environment generator printed a line this program cannot read: %1</source>
        <translation>генератор окружения systemd вывел строку, которую эта программа не может прочитать: %1</translation>
    </message>
</context>
<context>
    <name>LineGrammar</name>
    <message>
        <location filename="../core/shell/linegrammar.cpp" line="+29"/>
        <source>it holds a line break or another control character</source>
        <translation>оно содержит перевод строки или другой управляющий символ</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>it opens a $(, ${ or ` that it does not close</source>
        <translation>оно открывает $(, ${ или `, которые не закрывает</translation>
    </message>
</context>
<context>
    <name>ListEditCommand</name>
    <message>
        <location filename="../gui/lookup/listeditcommand.cpp" line="+17"/>
        <source>Edit as &amp;list...</source>
        <translation>Изменить как &amp;список...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Edit a colon-separated value such as PATH one entry per line</source>
        <translation>Изменить значение, разделённое двоеточиями (например, PATH), по одному элементу в строке</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../resources/mainwindow.ui"/>
        <source>Environment Variables Editor</source>
        <translation>Редактор переменных окружения</translation>
    </message>
    <message>
        <location/>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <location/>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <location/>
        <source>toolBar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <location/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location/>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <location/>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <location/>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <location/>
        <source>&amp;Add...</source>
        <translation>&amp;Добавить...</translation>
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
        <translation>&amp;Удалить</translation>
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
        <translation>Параметры...</translation>
    </message>
    <message>
        <location/>
        <source>Open Preferences dialog</source>
        <translation>Открыть диалог параметров</translation>
    </message>
    <message>
        <location/>
        <source>Edit...</source>
        <translation>Изменить...</translation>
    </message>
</context>
<context>
    <name>OrvHelpMenu</name>
    <message>
        <location filename="../platform/orvintegration.cpp" line="+49"/>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>About...</source>
        <translation>О программе...</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
</context>
<context>
    <name>OwnedFile</name>
    <message>
        <location filename="../core/reach/ownedfile.cpp" line="+72"/>
        <source>line %1 of %2 continues on the next line, so it is left for you to change</source>
        <translation>строка %1 файла %2 продолжается на следующей строке, поэтому изменить её придётся вам</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>the last line of %1 ends in a backslash, which would join the new line to it</source>
        <translation>последняя строка %1 оканчивается обратной косой чертой, которая присоединила бы к ней новую строку</translation>
    </message>
</context>
<context>
    <name>PathListDialog</name>
    <message>
        <location filename="../gui/lookup/pathlistdialog.cpp" line="+37"/>
        <source>Edit %1 as a list</source>
        <translation>Изменение %1 как списка</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The entries of %1 in their order, one per line; double-click an entry to change it.</source>
        <translation>Элементы %1 по порядку, по одному в строке; дважды щёлкните элемент, чтобы изменить его.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>&amp;Add folder...</source>
        <translation>&amp;Добавить папку...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move &amp;up</source>
        <translation>Вв&amp;ерх</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Move &amp;down</source>
        <translation>Вн&amp;из</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove du&amp;plicates</source>
        <translation>Удалить &amp;повторы</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>Add folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <location line="+92"/>
        <source>empty: stands for the current folder</source>
        <translation>пусто: означает текущую папку</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>does not exist</source>
        <translation>не существует</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>is not a folder</source>
        <translation>не является папкой</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>duplicate of entry %1</source>
        <translation>повтор элемента %1</translation>
    </message>
</context>
<context>
    <name>PreviewCommand</name>
    <message>
        <location filename="../gui/history/previewcommand.cpp" line="+16"/>
        <source>Pre&amp;view changes...</source>
        <translation>&amp;Предпросмотр изменений...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show every line the next save would change in each file</source>
        <translation>Показать каждую строку, которую следующее сохранение изменит в каждом файле</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <location filename="../gui/history/previewdialog.cpp" line="+37"/>
        <source>Preview changes</source>
        <translation>Предпросмотр изменений</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saving changes no file.</source>
        <translation>Сохранение не изменит ни одного файла.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Saving changes one file.</source>
        <translation>Сохранение изменит один файл.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Saving changes %1 files.</source>
        <translation>Сохранение изменит файлов: %1.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>%1 (new file)</source>
        <translation>%1 (новый файл)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (now)</source>
        <translation>%1 (сейчас)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (after saving)</source>
        <translation>%1 (после сохранения)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
</context>
<context>
    <name>ReachCommand</name>
    <message>
        <location filename="../gui/reach/reachcommand.cpp" line="+15"/>
        <source>R&amp;each...</source>
        <translation>Д&amp;ействие...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show which value each kind of program gets for the selected variable</source>
        <translation>Показать, какое значение выбранной переменной получит каждый вид программ</translation>
    </message>
</context>
<context>
    <name>ReachDialog</name>
    <message>
        <location filename="../gui/reach/reachdialog.cpp" line="+39"/>
        <source>no shell</source>
        <translation>нет оболочки</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Where %1 takes effect</source>
        <translation>Где действует %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The value each kind of program gets at the next login, as the programs themselves work it out. The table has %1=%2.</source>
        <translation>Значение, которое каждый вид программ получит при следующем входе, как его вычисляют сами программы. В таблице: %1=%2.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Programs</source>
        <translation>Программы</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value at the next login</source>
        <translation>Значение при следующем входе</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Set in</source>
        <translation>Задано в</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>As in the table</source>
        <translation>Как в таблице</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Graphical programs</source>
        <translation>Графические программы</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Login shell (%1)</source>
        <translation>Оболочка входа (%1)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Terminals</source>
        <translation>Терминалы</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>SSH logins</source>
        <translation>Входы по SSH</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Double-click a file to see every line that sets %1</source>
        <translation>Дважды щёлкните по файлу, чтобы увидеть все строки, задающие %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Make it reach &amp;graphical programs</source>
        <translation>Задать для &amp;графических программ</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Make it reach &amp;fish</source>
        <translation>Задать для &amp;fish</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Make it reach &amp;zsh</source>
        <translation>Задать для &amp;zsh</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>&amp;Write these lines</source>
        <translation>&amp;Записать эти строки</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Apply to programs started from now on</source>
        <translation>&amp;Применить к программам, запускаемым с этого момента</translation>
    </message>
    <message>
        <location line="+97"/>
        <source>working out...</source>
        <translation>вычисляется...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+4"/>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>not set</source>
        <translation>не задано</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>environment.d read without the generator: %1</source>
        <translation>environment.d прочитан без генератора: %1</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>%1 cannot be written into %2: %3</source>
        <translation>%1 нельзя записать в %2: %3</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Writing changes these lines of %1:</source>
        <translation>Запись изменит эти строки в %1:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Writing makes %1 with these lines:</source>
        <translation>Запись создаст %1 с этими строками:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>It takes effect at the next login; it cannot be applied now, because %1.</source>
        <translation>Это подействует при следующем входе; применить сейчас нельзя, потому что %1.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Couldn&apos;t write file %1: %2</source>
        <translation>Не удалось записать файл %1: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 was written.</source>
        <translation>%1 записан.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>What it held before is kept as a copy (Restore...).</source>
        <translation>Прежнее содержимое сохранено в копии (Восстановить...).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>No copy could be kept: %1.</source>
        <translation>Не удалось сохранить копию: %1.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Programs started from now on get %1=%2. Programs already running and open terminals keep the value they have.</source>
        <translation>Программы, запускаемые с этого момента, получат %1=%2. Уже запущенные программы и открытые терминалы сохранят своё значение.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Couldn&apos;t apply it now: %1: %2</source>
        <translation>Не удалось применить сейчас: %1: %2</translation>
    </message>
</context>
<context>
    <name>ReachProcess</name>
    <message>
        <location filename="../core/reach/reachprocess.cpp" line="+69"/>
        <source>setsid was not found</source>
        <translation>setsid не найден</translation>
    </message>
</context>
<context>
    <name>Restore</name>
    <message>
        <location filename="../core/save/restore.cpp" line="+25"/>
        <source>it is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>it could not be read completely</source>
        <translation>его не удалось прочитать полностью</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>The copy %1 cannot be read: %2</source>
        <translation>Не удаётся прочитать копию %1: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 cannot be opened for writing: %2</source>
        <translation>Не удаётся открыть %1 для записи: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 could not be written: %2</source>
        <translation>Не удалось записать %1: %2</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <location filename="../gui/history/restorecommand.cpp" line="+18"/>
        <source>&amp;Restore...</source>
        <translation>&amp;Восстановить...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Put back an earlier version of a start-up file</source>
        <translation>Вернуть прежнюю версию файла запуска</translation>
    </message>
    <message>
        <location line="+27"/>
        <location line="+8"/>
        <source>Restore</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Restoring reloads the table, so your unsaved changes are lost. Restore anyway?</source>
        <translation>Восстановление заново загружает таблицу, поэтому несохранённые изменения будут потеряны. Всё равно восстановить?</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 was restored from its copy of %2.</source>
        <translation>%1 восстановлен из копии от %2.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 was restored from its copy of %2; what it held before is kept as a copy.</source>
        <translation>%1 восстановлен из копии от %2; прежнее содержимое сохранено как копия.</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <location filename="../gui/history/restoredialog.cpp" line="+34"/>
        <source>Restore an earlier version</source>
        <translation>Восстановить прежнюю версию</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The earlier copies cannot be listed: the folder %1 cannot be read: %2.</source>
        <translation>Не удаётся показать прежние копии: не удаётся прочитать папку %1: %2.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>File and copy</source>
        <translation>Файл и копия</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>no copies</source>
        <translation>нет копий</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>&amp;Restore</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>No start-up file has earlier copies.</source>
        <translation>Ни у одного файла запуска нет прежних копий.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Choose a copy of %1.</source>
        <translation>Выберите копию %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No earlier copies of %1 are kept. A copy is made each time a save or a restore rewrites the file.</source>
        <translation>Прежних копий %1 нет. Копия создаётся каждый раз, когда сохранение или восстановление перезаписывает файл.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The copy of %1 from %2 cannot be read: %3.</source>
        <translation>Не удаётся прочитать копию %1 от %2: %3.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 cannot be read now: %2.</source>
        <translation>Сейчас не удаётся прочитать %1: %2.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The copy from %1 is the same as %2 now.</source>
        <translation>Копия от %1 совпадает с нынешним %2.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Restoring the copy from %1 changes these lines of %2:</source>
        <translation>Восстановление копии от %1 изменит эти строки %2:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 does not exist now; restoring the copy from %2 makes it again.</source>
        <translation>%1 сейчас нет; восстановление копии от %2 создаст его снова.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (now)</source>
        <translation>%1 (сейчас)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (copy from %2)</source>
        <translation>%1 (копия от %2)</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <location filename="../core/files/safefile.cpp" line="+30"/>
        <location filename="../core/variables/origins.cpp" line="+39"/>
        <source>it is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>it belongs to another user or has more than one name</source>
        <translation>он принадлежит другому пользователю или имеет больше одного имени</translation>
    </message>
    <message>
        <location filename="../core/files/backups.cpp" line="+10"/>
        <location filename="../core/files/safefile.cpp" line="+57"/>
        <source>it could not be read completely</source>
        <translation>его не удалось прочитать полностью</translation>
    </message>
    <message>
        <location filename="../core/files/safefile.cpp" line="+138"/>
        <source>another program changed it during the save</source>
        <translation>другая программа изменила его во время сохранения</translation>
    </message>
</context>
<context>
    <name>ShellCheck</name>
    <message>
        <location filename="../core/preview/shellcheck.cpp" line="+41"/>
        <source>csh files are not checked</source>
        <translation>файлы csh не проверяются</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 is not installed</source>
        <translation>%1 не установлен</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 could not be started</source>
        <translation>не удалось запустить %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 did not finish within %2 seconds</source>
        <translation>%1 не завершился за %2 с</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1 -n: the file still parses.</source>
        <translation>%1 -n: синтаксис файла по-прежнему верен.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 -n: the file would not parse, and does not parse now either: %2</source>
        <translation>%1 -n: синтаксис файла будет неверен, как и сейчас: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 -n: the file would no longer parse: %2</source>
        <translation>%1 -n: синтаксис файла станет неверным: %2</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Not checked whether the file still parses: %1.</source>
        <translation>Синтаксис файла не проверен: %1.</translation>
    </message>
</context>
<context>
    <name>ShellProbe</name>
    <message>
        <location filename="../core/reach/shellprobe.cpp" line="+127"/>
        <source>%1 is not a valid variable name</source>
        <translation>%1 — недопустимое имя переменной</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 is not a shell this program knows how to ask (bash, sh, dash, zsh, fish, csh and tcsh are)</source>
        <translation>%1 — не оболочка, которую эта программа умеет опрашивать (умеет: bash, sh, dash, zsh, fish, csh и tcsh)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 is not installed: %2 was not found</source>
        <translation>%1 не установлен: %2 не найден</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 cannot be run: %2 is not a program</source>
        <translation>не удаётся запустить %1: %2 — не программа</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 cannot be asked: printenv, printf or bash was not found</source>
        <translation>не удаётся опросить %1: не найден printenv, printf или bash</translation>
    </message>
    <message>
        <location line="+93"/>
        <source>%1 did not finish in %2 seconds: a start-up file may wait for input</source>
        <translation>%1 не завершился за %2 с: возможно, файл запуска ждёт ввода</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 printed more than 1 MiB while starting, so it was stopped</source>
        <translation>%1 вывел при запуске больше 1 МиБ, поэтому он был остановлен</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 could not be started: %2</source>
        <translation>не удалось запустить %1: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 was killed by signal %2 before it printed the variable</source>
        <translation>%1 был завершён сигналом %2, прежде чем вывел переменную</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>printenv could not print %1 in %2</source>
        <translation>printenv не смог вывести %1 в %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 exited with status %2 before it printed the variable</source>
        <translation>%1 завершился с кодом %2, прежде чем вывел переменную</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 ended without printing the variable: a start-up file may end it with exec or exit</source>
        <translation>%1 завершился, не выведя переменную: возможно, файл запуска завершает его через exec или exit</translation>
    </message>
</context>
<context>
    <name>SideEffects</name>
    <message>
        <location filename="../core/preview/sideeffects.cpp" line="+62"/>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>changes %1 to %2</source>
        <translation>меняет %1 на %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>removes %1</source>
        <translation>удаляет %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rewrites the commented-out line %1 of %2</source>
        <translation>перезаписывает закомментированную строку %1 в %2</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>line %1 of %2</source>
        <translation>строку %1 в %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>rewrites the commented-out %1</source>
        <translation>перезаписывает закомментированные строки: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>This save also %1.</source>
        <translation>Это сохранение также %1.</translation>
    </message>
</context>
<context>
    <name>Surprises</name>
    <message>
        <location filename="../core/preview/surprises.cpp" line="+58"/>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <location line="+158"/>
        <source>%1 also changes.</source>
        <translation>%1 тоже изменится.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 also change.</source>
        <translation>%1 тоже изменятся.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A commented-out line changes: line %1.</source>
        <translation>Изменится закомментированная строка: строка %1.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Commented-out lines change: lines %1.</source>
        <translation>Изменятся закомментированные строки: строки %1.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Line %1 loses &quot;%2&quot;, which follows the value of %3.</source>
        <translation>Строка %1 потеряет «%2» после значения %3.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is saved into no line of its own: this file will not set it.</source>
        <translation>%1 не получит своей строки: этот файл не будет её задавать.</translation>
    </message>
</context>
<context>
    <name>SysrootCommand</name>
    <message>
        <location filename="../core/reach/sysrootcommand.cpp" line="+58"/>
        <source>%1 cannot run with the system folders of %2: %3 was not found</source>
        <translation>%1 не может работать с системными папками %2: %3 не найден</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>%1 cannot run with the system folders of %2: this system has no folder %3 to put %4 over</source>
        <translation>%1 не может работать с системными папками %2: в этой системе нет папки %3, поверх которой можно было бы подключить %4</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>%1 cannot run with the system folders of %2: %3</source>
        <translation>%1 не может работать с системными папками %2: %3</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <location filename="../gui/window/toolsmenu.cpp" line="+12"/>
        <source>&amp;Tools</source>
        <translation>С&amp;ервис</translation>
    </message>
</context>
<context>
    <name>UserManager</name>
    <message>
        <location filename="../core/reach/usermanager.cpp" line="+21"/>
        <location line="+40"/>
        <source>%1 is not installed</source>
        <translation>%1 не установлен</translation>
    </message>
    <message>
        <location line="-31"/>
        <source>%1 did not finish in %2 seconds</source>
        <translation>%1 не завершился за %2 секунд</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 failed with status %2</source>
        <translation>%1 завершился с ошибкой, код %2</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>not asked yet</source>
        <translation>ещё не спрошен</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>no systemd user manager answers: %1</source>
        <translation>менеджер пользователя systemd не отвечает: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>systemctl --user failed</source>
        <translation>systemctl --user завершился с ошибкой</translation>
    </message>
</context>
<context>
    <name>WhereSet</name>
    <message>
        <location filename="../core/lookup/whereset.cpp" line="+131"/>
        <source>cannot be read: it is not a regular file</source>
        <translation>не удаётся прочитать: это не обычный файл</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+5"/>
        <source>cannot be read: %1</source>
        <translation>не удаётся прочитать: %1</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>No start-up file that a login reads sets %1</source>
        <translation>Ни один файл запуска, читаемый при входе в систему, не задаёт %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 sets `%2`, which the shell works out at login; this session does not have %3</source>
        <translation>%1 задаёт `%2`, это значение оболочка вычисляет при входе; в этом сеансе %3 нет</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 sets `%2`, which the shell works out at login; this session has `%3`</source>
        <translation>%1 задаёт `%2`, это значение оболочка вычисляет при входе; в этом сеансе `%3`</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 sets `%2`, the value this session has</source>
        <translation>%1 задаёт `%2` — то же значение, что и в этом сеансе</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 sets `%2`; this session does not have %3: the saved value takes effect at the next login</source>
        <translation>%1 задаёт `%2`; в этом сеансе %3 нет: сохранённое значение вступит в силу при следующем входе</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 sets `%2`; this session does not have %3: log in again to use the file&apos;s value</source>
        <translation>%1 задаёт `%2`; в этом сеансе %3 нет: войдите в систему заново, чтобы использовать значение из файла</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 sets `%2`; this session has `%3`: the saved value takes effect at the next login</source>
        <translation>%1 задаёт `%2`; в этом сеансе `%3`: сохранённое значение вступит в силу при следующем входе</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 sets `%2`; this session has `%3`: log in again to use the file&apos;s value</source>
        <translation>%1 задаёт `%2`; в этом сеансе `%3`: войдите в систему заново, чтобы использовать значение из файла</translation>
    </message>
</context>
<context>
    <name>WhereSetCommand</name>
    <message>
        <location filename="../gui/lookup/wheresetcommand.cpp" line="+18"/>
        <source>&amp;Where is it set?...</source>
        <translation>&amp;Где она задана?...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Show every line of the start-up files that sets the selected variable</source>
        <translation>Показать все строки файлов запуска, задающие выбранную переменную</translation>
    </message>
</context>
<context>
    <name>WhereSetDialog</name>
    <message>
        <location filename="../gui/lookup/wheresetdialog.cpp" line="+15"/>
        <source>Where is %1 set?</source>
        <translation>Где задана %1?</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>In this session: %1=%2</source>
        <translation>В этом сеансе: %1=%2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This session does not have %1</source>
        <translation>В этом сеансе нет %1</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Line</source>
        <translation>Строка</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>commented out</source>
        <translation>закомментировано</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>exports it, sets no value</source>
        <translation>экспортирует, но не задаёт значение</translation>
    </message>
</context>
<context>
    <name>preferencesDialog</name>
    <message>
        <location filename="../resources/preferencesdialog.ui"/>
        <location filename="../gui/dialogs/preferencesdialog.cpp" line="+33"/>
        <source>Preferences</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <location/>
        <source>System Config Files</source>
        <translation>Системные файлы настроек</translation>
    </message>
    <message>
        <location/>
        <source>User Config Files</source>
        <translation>Пользовательские файлы настроек</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected system file up</source>
        <translation>Переместить выбранный системный файл вверх</translation>
    </message>
    <message>
        <location/>
        <source>Move system file up</source>
        <translation>Системный файл вверх</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected system file down</source>
        <translation>Переместить выбранный системный файл вниз</translation>
    </message>
    <message>
        <location/>
        <source>Move system file down</source>
        <translation>Системный файл вниз</translation>
    </message>
    <message>
        <location/>
        <source>Add a system file to scan</source>
        <translation>Добавить системный файл для просмотра</translation>
    </message>
    <message>
        <location/>
        <source>Add system file</source>
        <translation>Добавить системный файл</translation>
    </message>
    <message>
        <location/>
        <source>Remove the selected system file from the list</source>
        <translation>Убрать выбранный системный файл из списка</translation>
    </message>
    <message>
        <location/>
        <source>Remove system file</source>
        <translation>Убрать системный файл</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected user file up</source>
        <translation>Переместить выбранный файл пользователя вверх</translation>
    </message>
    <message>
        <location/>
        <source>Move user file up</source>
        <translation>Файл пользователя вверх</translation>
    </message>
    <message>
        <location/>
        <source>Move the selected user file down</source>
        <translation>Переместить выбранный файл пользователя вниз</translation>
    </message>
    <message>
        <location/>
        <source>Move user file down</source>
        <translation>Файл пользователя вниз</translation>
    </message>
    <message>
        <location/>
        <source>Add a user file to scan</source>
        <translation>Добавить файл пользователя для просмотра</translation>
    </message>
    <message>
        <location/>
        <source>Add user file</source>
        <translation>Добавить файл пользователя</translation>
    </message>
    <message>
        <location/>
        <source>Remove the selected user file from the list</source>
        <translation>Убрать выбранный файл пользователя из списка</translation>
    </message>
    <message>
        <location/>
        <source>Remove user file</source>
        <translation>Убрать файл пользователя</translation>
    </message>
</context>
<context>
    <name>uEditor</name>
    <message>
        <location filename="../resources/ueditor.ui"/>
        <location filename="../gui/dialogs/ueditor.cpp" line="+86"/>
        <source>Edit variable</source>
        <translation>Изменение переменной</translation>
    </message>
    <message>
        <location/>
        <source>Variable</source>
        <translation>Переменная</translation>
    </message>
    <message>
        <location/>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <location/>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <location/>
        <source>Critical system variable</source>
        <translation>Критическая системная переменная</translation>
    </message>
    <message>
        <location/>
        <source>Save in system directory /etc/</source>
        <translation>Сохранить в системном каталоге /etc/</translation>
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
        <translation>Создание новой переменной</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Enter new variable&apos;s name here...</source>
        <translation>Введите здесь имя новой переменной...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter new variable&apos;s value here...</source>
        <translation>Введите здесь значение новой переменной...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter comments here...</source>
        <translation>Введите здесь комментарий...</translation>
    </message>
</context>
</TS>
