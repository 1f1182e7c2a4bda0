#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <optional>

// The files this program owns, one line per variable: the environment.d
// file and fish's conf.d file. Only bytes in, bytes out: the caller writes
// them through its safe write.
class OwnedFile
{
    Q_DECLARE_TR_FUNCTIONS(OwnedFile)

public:
    enum class Kind { EnvironmentD, Fish };

    struct Edit
    {
        QByteArray bytes;
        QString refusal; // one sentence; empty when bytes holds the new file

        bool ok() const { return refusal.isEmpty(); }
    };

    // ~/.config/environment.d/60-orv-admin-env.conf or
    // ~/.config/fish/conf.d/orv-admin-env.fish, under `configHome`.
    static QString path(Kind kind, const QString &configHome);
    // The comment line a new file starts with, without its line end.
    static QByteArray header();

    // The new bytes of the file with `line` setting `name`: the last line
    // that sets it replaced (every other byte kept, comments, blank lines
    // and line ends included), or the line appended. `current` is nothing
    // when the file does not exist; a new or empty file starts with the
    // header. Refused when the line to replace, or the last line before an
    // appended one, continues on the next line.
    static Edit withLine(Kind kind, const std::optional<QByteArray> &current, const QString &name,
                         const QString &line);
};
