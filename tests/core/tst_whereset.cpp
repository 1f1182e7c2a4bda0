#include "core/files/configfiles.h"
#include "core/lookup/pathlist.h"
#include "core/lookup/whereset.h"
#include "support/coresandboxtest.h"

#include <optional>

using Line = WhereSet::Line;
using Session = std::optional<QString>;

// A line that the scan for PAGER lists: its number (0 for a file that cannot
// be read), its text, the value it sets (none for "export PAGER") and
// whether a "#" comments it out.
struct Listed
{
    int number;
    QString text;
    std::optional<QString> value;
    bool commented = false;

    bool operator==(const Listed &other) const
    {
        return number == other.number && text == other.text && value == other.value &&
               commented == other.commented;
    }
};

char *toString(const Listed &listed)
{
    return QTest::toString(QString::number(listed.number) + ": " + listed.text + " [" +
                           listed.value.value_or("no value") + ']' +
                           (listed.commented ? " (commented out)" : ""));
}

Q_DECLARE_METATYPE(QList<Listed>)
Q_DECLARE_METATYPE(QList<WhereSet::Line>)
Q_DECLARE_METATYPE(std::optional<QString>)

// "~/" stands for the sandbox home and "/" for the sandbox root.
static QString place(const QString &path)
{
    return path.startsWith("~/") ? Sandbox::home() + path.mid(1) : Sandbox::system(path);
}

// The start-up files a login of bash reads, with the lists of the editor.
static QList<WhereSet::File> startupFiles(const QStringList &systemFiles = {},
                                          const QStringList &userFiles = {})
{
    return WhereSet::startupFiles(ConfigFiles::Bash, Sandbox::home(), systemFiles, userFiles);
}

// Which files a login reads, and the lines in them that set or export a variable.
class TestWhereSet : public CoreSandboxTest
{
    Q_OBJECT

private slots:
    void splitAndJoinRoundTrip_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("entries");
        QTest::addRow("an empty value has no entries") << "" << QStringList();
        QTest::addRow("empty entries keep their places")
            << ":/a::/b:" << QStringList({"", "/a", "", "/b", ""});
    }
    void splitAndJoinRoundTrip()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, entries);
        QCOMPARE(PathList::split(value), entries);
        QCOMPARE(PathList::join(entries), value);
    }

    // Each file in the order of a login, each once; the editor's lists come
    // after the known files of their side, without the repeats and the missing.
    void filesComeInTheOrderOfALogin()
    {
        for (const char *path :
             {"/etc/environment", "~/.pam_environment", "~/.config/environment.d/20-b.conf",
              "~/.config/environment.d/10-a.conf", "~/.config/environment.d/c.txt", "/etc/profile",
              "/etc/bash.bashrc", "/etc/profile.d/b.sh", "/etc/profile.d/a.sh",
              "/etc/profile.d/c.txt", "/etc/extra", "~/.bash_profile", "~/.profile", "~/.bashrc",
              "~/.extra"})
            Sandbox::writeFile(place(path), "");
        Sandbox::blockPath(place("~/.bash_login"));

        QStringList files;
        for (const WhereSet::File &file :
             startupFiles({place("/etc/profile"), place("/etc/extra")},
                          {place("~/.bashrc"), place("~/.extra"), place("~/.missing")}))
            files << WhereSet::displayPath(file.path, Sandbox::home()).remove(Sandbox::sysroot());

        QCOMPARE(files,
                 QStringList(
                     {"/etc/environment", "~/.pam_environment", "~/.config/environment.d/10-a.conf",
                      "~/.config/environment.d/20-b.conf", "/etc/profile", "/etc/bash.bashrc",
                      "/etc/profile.d/a.sh", "/etc/profile.d/b.sh", "/etc/extra", "~/.bash_profile",
                      "~/.bash_login", "~/.profile", "~/.bashrc", "~/.extra"}));
    }

    void findsTheLinesThatSetOrExport_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("contents"); // a null array: a folder stands in its place
        QTest::addColumn<QList<Listed>>("listed");
        const auto row = [](const char *sentence, const char *file, const QByteArray &contents,
                            const QList<Listed> &listed) {
            QTest::newRow(sentence) << QString(file) << contents << listed;
        };
        row("/etc/environment gives the rest of the line as the value", "/etc/environment",
            "LANG=C\nPAGER=less -R\n", {{2, "PAGER=less -R", "less -R"}});
        row("~/.pam_environment gives OVERRIDE before DEFAULT", "~/.pam_environment",
            "PAGER DEFAULT=less OVERRIDE=\"most -s\"\n",
            {{1, "PAGER DEFAULT=less OVERRIDE=\"most -s\"", "most -s"}});
        row("a commented-out line in environment.d is listed as commented out",
            "~/.config/environment.d/10-a.conf", "# PAGER=\"pg\"\n",
            {{1, "# PAGER=\"pg\"", "pg", true}});
        row("environment.d leaves ${HOME} as written", "~/.config/environment.d/20-b.conf",
            "PAGER=${HOME}/pg -s\n", {{1, "PAGER=${HOME}/pg -s", "${HOME}/pg -s"}});
        row("an export without a value is listed and sets nothing", "/etc/profile",
            "export PAGER\n", {{1, "export PAGER", std::nullopt}});
        row("lines that end in \\r\\n are read without the \\r", "/etc/profile",
            "PATH=/usr/bin\r\nexport PAGER=less\r\n", {{2, "export PAGER=less", "less"}});
        row("an assignment inside if ... fi counts", "/etc/bash.bashrc",
            "if true; then PAGER=less; fi\n", {{1, "if true; then PAGER=less; fi", "less"}});
        row("profile.d scripts are read only when they end in .sh", "/etc/profile.d/c.txt",
            "export PAGER=c\n", {});
        row("a comment after the value is not part of it", "~/.bash_profile",
            "export PAGER=most # the best\n", {{1, "export PAGER=most # the best", "most"}});
        row("a file that cannot be read says why", "~/.bash_login", QByteArray(),
            {{0, "cannot be read: it is not a regular file", std::nullopt}});
        row("a commented-out export is listed as commented out", "~/.profile",
            "umask 022\n# export PAGER=less\n", {{2, "# export PAGER=less", "less", true}});
        row("an indented assignment counts, a longer name ending in the name does not",
            "~/.profile", "if [ -x /usr/bin/most ]; then\n    PAGER=most\nfi\nexport MYPAGER=x",
            {{2, "    PAGER=most", "most"}});
        row("the name after echo or in a comment sets nothing", "~/.bashrc",
            "echo PAGER=x # PAGER=y\n", {});
        row("the last assignment on a line gives the value", "~/.bashrc",
            "export B=1 PAGER=less; PAGER=most\n",
            {{1, "export B=1 PAGER=less; PAGER=most", "most"}});
        row("an assignment followed by an export of the name is one line", "~/.bashrc",
            "PAGER=pg; export PAGER\n", {{1, "PAGER=pg; export PAGER", "pg"}});
    }
    void findsTheLinesThatSetOrExport()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, contents);
        QFETCH(QList<Listed>, listed);
        contents.isNull() ? Sandbox::blockPath(place(file))
                          : Sandbox::writeFile(place(file), contents);

        QList<Listed> found;
        for (const WhereSet::File &read : startupFiles()) {
            for (const Line &line : WhereSet::scanFile(read, "PAGER")) {
                QCOMPARE(line.path, place(file));
                QCOMPARE(line.readable, line.number > 0);
                found.append({line.number, line.text,
                              line.hasValue ? std::optional(line.value) : std::nullopt,
                              line.commented});
            }
        }
        QCOMPARE(found, listed);
    }

    // The table holds "less" in every case.
    void theSentenceComparesTheLastAssignmentWithTheSession_data()
    {
        QTest::addColumn<QList<Line>>("lines");
        QTest::addColumn<Session>("session");
        QTest::addColumn<QString>("sentence");
        const auto set = [](const QString &path, const QString &value, bool commented = false) {
            return Line{Sandbox::home() + path, 1, "", true, commented, true, value};
        };
        QTest::addRow("no file sets it")
            << QList<Line>() << Session("less") << "No start-up file that a login reads sets PAGER";
        QTest::addRow("the last line not commented out differs from the session")
            << QList<Line>{set("/.profile", "less"), set("/.bashrc", "most"),
                           set("/.bashrc", "pg", true)}
            << Session("less")
            << "~/.bashrc sets `most`; this session has `less`: log in again to use the file's "
               "value";
        QTest::addRow("the home folder is expanded before comparing")
            << QList<Line>{set("/.profile", "$HOME/bin/pg")} << Session(Sandbox::home() + "/bin/pg")
            << "~/.profile sets `$HOME/bin/pg`, the value this session has";
        QTest::addRow("the session lacks the variable")
            << QList<Line>{set("/.profile", "most")} << Session()
            << "~/.profile sets `most`; this session does not have PAGER: log in again to use "
               "the file's value";
        QTest::addRow("a value built from other variables")
            << QList<Line>{set("/.profile", "$HOME/bin:$PATH")} << Session("/usr/bin")
            << "~/.profile sets `$HOME/bin:$PATH`, which the shell works out at login; this "
               "session has `/usr/bin`";
    }
    void theSentenceComparesTheLastAssignmentWithTheSession()
    {
        QFETCH(QList<Line>, lines);
        QFETCH(Session, session);
        QTEST(WhereSet::explain(lines, "PAGER", session, "less", Sandbox::home()), "sentence");
    }
};

ORV_SANDBOX_CORE_TEST_MAIN(TestWhereSet)
#include "tst_whereset.moc"
