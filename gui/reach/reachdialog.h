#pragma once

#include "core/reach/reachenvironment.h"
#include "core/reach/reachresult.h"
#include "core/reach/reachwrite.h"

#include <QDialog>

#include <optional>

class EditorWindow;
class GeneratorProbe;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;
class ShellProbe;
class UserManager;

// Which value each kind of program gets for one variable at the next login,
// worked out by the programs themselves in the background, and the writes
// that make the table's value reach those that differ.
class ReachDialog : public QDialog
{
    Q_OBJECT

public:
    enum Row { GraphicalRow, LoginRow, TerminalRow, SshRow, RowCount };
    enum ColumnNumber { ContextColumn, ValueColumn, OriginColumn, SameColumn };

    ReachDialog(EditorWindow *window, const QString &name, const QString &tableValue,
                const ReachEnvironment &environment, QWidget *parent);
    ~ReachDialog() override;

    // The value of a row once it is worked out.
    ReachResult result(Row row) const { return results[row]; }
    bool isWorkingOut() const;

    QLabel *introLabel;
    QTreeWidget *rowList;
    QPushButton *graphicalButton; // "Make it reach graphical programs"
    QPushButton *shellButton;     // "Make it reach zsh" or "... fish", when SHELL is one
    QLabel *pendingLabel;         // where the pending write goes, or what was done
    QPlainTextEdit *pendingLines; // the exact lines it changes
    QPushButton *writeButton;
    QPushButton *applyButton; // "Apply to programs started from now on"

signals:
    // Every row worked out: after opening and after each write.
    void workedOut();

private:
    void start();
    void showRow(Row row, const ReachResult &result);
    void combine();
    void updateButtons();
    void propose(ReachWrite::Target target);
    void writePending();
    void applyNow();
    void openOrigin(int row);

    EditorWindow *window;
    const QString name;
    const QString tableValue;
    const ReachEnvironment environment;
    ShellProbe *shells = nullptr;
    GeneratorProbe *generator = nullptr;
    UserManager *userManager = nullptr;
    ReachResult results[RowCount];
    ReachResult etcEnvironment;
    QString generatorNote; // why the generator could not be asked
    std::optional<ReachWrite> pending;
};
