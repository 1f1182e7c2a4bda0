#include "gui/model/evemodel.h"

#include "core/save/savecommit.h"
#include "core/save/saveplan.h"
#include "core/variables/catalogue.h"
#include "core/variables/environmentrecords.h"
#include "core/variables/origins.h"
#include "gui/model/criticalchange.h"

#include <QFile>
#include <QMessageBox>

#include <algorithm>
#include <cstring>
#include <numeric>
#include <string>
#include <vector>

EveModel::EveModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    headerLabels << tr("Variable") << tr("Value") << tr("Origin") << tr("Description");

    // The environment tells the shell and the home directory, which decide
    // the files; the files then tell where each variable comes from.
    loadEnvironment(rows);
    const ConfigFiles::Candidates candidates = ConfigFiles::candidates(ShellKind, homeDir);
    globalFile = candidates.global;
    localFile = candidates.local;
    chooseConfigFiles(ShellKind, globalFile, localFile);
    readFileLists();
    loadFiles();
}

void EveModel::scanEnvironmentEntry(const QStringList &entry)
{
    ConfigFiles::Session session{rootSession, bashShell, ShellKind, homeDir};
    ConfigFiles::scanEnvironmentEntry(session, entry.value(VariableColumn),
                                      entry.value(ValueColumn));
    rootSession = session.rootSession;
    bashShell = session.bashShell;
    ShellKind = session.shellKind;
    homeDir = session.homeDir;
}

void EveModel::chooseConfigFiles(int shellKind, QString &global, QString &local)
{
    ConfigFiles::choose(shellKind, homeDir, global, local);
}

void EveModel::readFileLists()
{
    const ConfigFiles::Lists lists =
        ConfigFiles::readLists(ShellKind, rootSession, globalFile, localFile);
    systemFiles = lists.systemFiles;
    userFiles = lists.userFiles;
}

void EveModel::describeKnownVariable(QStringList &record) const
{
    Catalogue::describe(record);
}

void EveModel::loadEnvironment(QList<QStringList> &records)
{
    records = environmentRecords(tr("System"));
    for (const QStringList &record : qAsConst(records))
        scanEnvironmentEntry(record);
}

QList<QStringList> EveModel::parseFile(QFile &file) const
{
    return exportRecords(file.readAll(), file.fileName());
}

void EveModel::loadFiles()
{
    beginResetModel();
    // Later files win: user files come after system files.
    const QList<Failure> unreadable = assignOrigins(rows, systemFiles + userFiles);
    for (const Failure &failure : unreadable) {
        QMessageBox box;
        box.setText(tr("Couldn't open file: %1 !").arg(failure.path));
        box.exec();
    }
    endResetModel();
}

bool EveModel::reload()
{
    deletedRows.clear();
    rows.clear();
    loadEnvironment(rows);
    loadFiles();
    return true;
}

SaveInput EveModel::saveInput() const
{
    return {rows, deletedRows, rootSession, localFile, globalFile, tr("System")};
}

bool EveModel::save()
{
    return save(planSave(saveInput()));
}

bool EveModel::save(const SavePlan &plan)
{
    const SaveReport report = commitSave(plan);
    for (const SaveReport::Problem &problem : report.problems) {
        const QString &path = problem.failure.path;
        QString text;
        switch (problem.kind) {
        case SaveReport::Problem::SavedWrite:
            text = tr("Couldn't write file %1 for saving variable %2: %3")
                       .arg(path, problem.name, problem.failure.reason);
            break;
        case SaveReport::Problem::SavedOpen:
            text = tr("Couldn't open file %1 for saving variable %2").arg(path, problem.name);
            break;
        case SaveReport::Problem::DeletedOpen:
            text = tr("Couldn't open file %1 for deleting variable %2").arg(path, problem.name);
            break;
        case SaveReport::Problem::Refused:
            text = tr("The value of %1 cannot be written into a start-up file: %2. Nothing "
                      "was saved.")
                       .arg(problem.name, problem.failure.reason);
            break;
        case SaveReport::Problem::DeletedWrite:
            text = tr("Couldn't write file %1 for deleting variable %2: %3")
                       .arg(path, problem.name, problem.failure.reason);
            break;
        }
        QMessageBox::warning(nullptr, tr("Warning!"), text, QMessageBox::Ok);
    }
    for (const Failure &failure : report.withoutCopies)
        QMessageBox::warning(nullptr, tr("Warning!"),
                             tr("Saved %1 without a copy: %2").arg(failure.path, failure.reason),
                             QMessageBox::Ok);
    if (!report.rowsSaved)
        return false;
    for (QStringList &row : rows) {
        if (row.size() > PreviousColumn)
            row[PreviousColumn].clear();
    }
    deletedRows.clear();
    return true;
}

bool EveModel::isValid(const QModelIndex &index) const
{
    return index.isValid() && index.row() < rows.size();
}

int EveModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows.size();
}

int EveModel::columnCount(const QModelIndex &) const
{
    return rows.isEmpty() ? 0 : int(ColumnCount);
}

Qt::ItemFlags EveModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || rows.isEmpty())
        return Qt::NoItemFlags;
    switch (index.column()) {
    case VariableColumn:
    case ValueColumn:
    case DescriptionColumn:
        return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
    default:
        return QAbstractTableModel::flags(index);
    }
}

QVariant EveModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::DisplayRole) {
        if (orientation == Qt::Vertical)
            return QVariant();
        if (section >= 0 && section < headerLabels.size())
            return headerLabels.at(section);
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

QVariant EveModel::data(const QModelIndex &index, int role) const
{
    if (!isValid(index))
        return QVariant();
    const QStringList row = rows.at(index.row());

    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return row.value(index.column());
    case Qt::StatusTipRole:
        return row.value(VariableColumn) + QLatin1Char('=') + row.value(ValueColumn);
    case Qt::ToolTipRole: {
        QString tip = QStringLiteral("<table>");
        for (int column = VariableColumn; column <= OriginColumn; ++column) {
            const QString label = headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            QString text = row.value(column);
            if (text.isEmpty())
                continue;
            if (column == ValueColumn && text.size() > 50) {
                // Long path lists get a space before each colon so the tip
                // can wrap there; anything else is cut.
                if (text.contains(QLatin1Char(':')))
                    text.replace(QLatin1Char(':'), QStringLiteral(" :"));
                else
                    text = text.left(51) + QStringLiteral("...");
            }
            tip += QStringLiteral("<tr><td><b>%1</b>: %2</td></tr>").arg(label, text);
        }
        return tip + QStringLiteral("</table>");
    }
    default:
        return QVariant();
    }
}

bool EveModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!isValid(index) || role != Qt::EditRole)
        return false;
    QStringList &row = rows[index.row()];

    if ((index.column() == VariableColumn || index.column() == ValueColumn) &&
        !row.value(VipColumn).isEmpty() && !confirmCriticalChange())
        return false;
    if (row.value(PreviousColumn).isEmpty())
        row[PreviousColumn] = row.value(index.column());
    row[index.column()] = value.toString();
    emit dataChanged(index, index);
    return true;
}

bool EveModel::setData(const QModelIndex &index, const QString &name, const QString &value,
                       const QString &description, const QString &scope, const QString &vip,
                       const QString &, int)
{
    if (!isValid(index))
        return false;
    QStringList &row = rows[index.row()];
    if (row.size() < ColumnCount)
        return false;

    if (row.at(PreviousColumn).isEmpty())
        row[PreviousColumn] = row.at(ValueColumn);
    row[VariableColumn] = name;
    row[ValueColumn] = value;
    row[DescriptionColumn] = description;
    row[ScopeColumn] = scope;
    row[VipColumn] = vip;
    emit dataChanged(this->index(index.row(), VariableColumn),
                     this->index(index.row(), PreviousColumn));
    return true;
}

bool EveModel::insertRows(int row, int, const QModelIndex &)
{
    const QStringList record{tr("__new__"), tr("VALUE"), tr("System"), QString(),
                             QString(),     QString(),   QString()};
    beginInsertRows(QModelIndex(), row, row);
    rows.append(record);
    endInsertRows();
    return true;
}

bool EveModel::insertRows(int row, int, const QStringList &fields, const QModelIndex &)
{
    // Fields are name, value, description and scope; a new row keeps its value
    // as the change marker so that the next save writes it.
    QStringList record;
    if (fields.size() <= 4) {
        record << fields.value(0) << fields.value(1) << tr("System") << fields.value(2)
               << fields.value(3) << QString() << fields.value(1);
    }
    beginInsertRows(QModelIndex(), row, row);
    rows.append(record);
    endInsertRows();
    return true;
}

bool EveModel::removeRows(int row, int, const QModelIndex &)
{
    if (row >= 0 && row < rows.size()) {
        beginRemoveRows(QModelIndex(), row, row);
        // Remembered so that the next save blanks the export line. The test
        // is on the Description column and compares the untranslated word.
        if (rows.at(row).value(DescriptionColumn) != QLatin1String("System"))
            deletedRows.append(rows.at(row));
        rows.removeAt(row);
        endRemoveRows();
    }
    emit layoutChanged();
    if (rows.size() <= 1)
        emit disableDel();
    return true;
}

namespace {

// Sort keys that order texts as QString::compare with Qt::CaseInsensitive
// does, which folds each character and compares the folded values. For
// ASCII texts that is a comparison of their lower-case bytes, far cheaper
// than folding through Unicode tables in every comparison.
class SortKeys
{
public:
    explicit SortKeys(const QVector<QString> &texts)
        : texts(texts)
    {
        spans.reserve(size_t(texts.size()));
        for (const QString &text : texts) {
            const int start = int(lowered.size());
            bool ascii = true;
            for (const QChar c : text) {
                const char16_t u = c.unicode();
                if (u >= 128) {
                    ascii = false;
                    break;
                }
                lowered += char(u >= 'A' && u <= 'Z' ? u + ('a' - 'A') : u);
            }
            if (!ascii)
                lowered.resize(size_t(start));
            spans.push_back({start, ascii ? text.size() : -1});
        }
    }

    int compare(int a, int b) const
    {
        const Span &x = spans[size_t(a)];
        const Span &y = spans[size_t(b)];
        if (x.length < 0 || y.length < 0)
            return QString::compare(texts.at(a), texts.at(b), Qt::CaseInsensitive);
        const int common = qMin(x.length, y.length);
        const int order =
            memcmp(lowered.data() + x.start, lowered.data() + y.start, size_t(common));
        return order != 0 ? order : x.length - y.length;
    }

private:
    struct Span
    {
        int start;
        int length; // -1: not ASCII
    };
    const QVector<QString> &texts;
    std::string lowered;
    std::vector<Span> spans;
};

} // namespace

void EveModel::sort(int column, Qt::SortOrder order)
{
    // Ascending puts Z before A and descending A before Z; equal texts (also
    // those differing only in case) keep their order.
    if (order == Qt::AscendingOrder || order == Qt::DescendingOrder) {
        QVector<QString> texts;
        texts.reserve(rows.size());
        for (const QStringList &row : qAsConst(rows))
            texts.append(row.value(column));
        const SortKeys keys(texts);
        std::vector<int> byText(size_t(rows.size()));
        std::iota(byText.begin(), byText.end(), 0);
        const int sign = order == Qt::AscendingOrder ? 1 : -1;
        std::stable_sort(byText.begin(), byText.end(),
                         [&keys, sign](int a, int b) { return sign * keys.compare(a, b) > 0; });
        QList<QStringList> sorted;
        sorted.reserve(rows.size());
        std::vector<int> newRow(byText.size());
        for (int row = 0; row < int(byText.size()); ++row) {
            sorted.append(rows.at(byText[size_t(row)]));
            newRow[size_t(byText[size_t(row)])] = row;
        }
        rows.swap(sorted);

        // The selection and the current index stay on their variables.
        const QModelIndexList from = persistentIndexList();
        QModelIndexList to;
        to.reserve(from.size());
        for (const QModelIndex &index : from) {
            to.append(index.row() < int(newRow.size())
                          ? this->index(newRow[size_t(index.row())], index.column())
                          : index);
        }
        changePersistentIndexList(from, to);
    }
    emit layoutChanged();
}
