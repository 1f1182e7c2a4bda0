#pragma once

#include "core/files/configfiles.h"
#include "core/variables/record.h"

#include <QAbstractTableModel>
#include <QList>
#include <QStringList>

class QFile;
struct SaveInput;
struct SavePlan;

// The table of environment variables: one record of seven strings per row,
// loaded from the process environment and the shell start-up files, and
// written back to those files by save(). It adapts the file logic of core to
// the view and turns its failures into the message boxes the user sees.
class EveModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    // Columns of a variable record.
    enum Column {
        VariableColumn = Record::Variable,
        ValueColumn = Record::Value,
        OriginColumn = Record::Origin,
        DescriptionColumn = Record::Description,
        ScopeColumn = Record::Scope,
        VipColumn = Record::Vip,
        PreviousColumn = Record::Previous,
        ColumnCount = Record::ColumnCount
    };
    // Values of ShellKind.
    enum ShellType { Other = ConfigFiles::Other, Bash = ConfigFiles::Bash, Csh = ConfigFiles::Csh };

    explicit EveModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    // Whole-record update from the editor dialog; `previous` and `role` are
    // accepted for the caller's sake and not used.
    bool setData(const QModelIndex &index, const QString &name, const QString &value,
                 const QString &description, const QString &scope, const QString &vip,
                 const QString &previous, int role);
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool insertRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    bool insertRows(int row, int count, const QStringList &fields,
                    const QModelIndex &parent = QModelIndex());
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // Fills Description and Vip of a record from the catalogue of well-known
    // variables; leaves unknown names alone.
    void describeKnownVariable(QStringList &record) const;

    bool reload();
    bool save();
    // Carries out a plan made from saveInput() with the messages of save().
    bool save(const SavePlan &plan);
    // What save() works from: the rows, the pending deletions and the files.
    SaveInput saveInput() const;

    // Configuration-file state, fixed at construction except for the two
    // lists, which the preferences dialog replaces in place.
    bool rootSession = false;
    bool bashShell = false;
    int ShellKind = Other;
    QString homeDir;
    QString globalFile;
    QString localFile;
    QStringList systemFiles;
    QStringList userFiles;
    QList<QStringList> deletedRows;

public slots:
    void sort(int column, Qt::SortOrder order) override;

signals:
    void disableDel();

private:
    void scanEnvironmentEntry(const QStringList &entry);
    void chooseConfigFiles(int shellKind, QString &global, QString &local);
    void readFileLists();
    void loadEnvironment(QList<QStringList> &records);
    void loadFiles();
    QList<QStringList> parseFile(QFile &file) const;
    bool isValid(const QModelIndex &index) const;

    QList<QStringList> rows;
    QStringList headerLabels;
};
