// The yardstick of the start-up benchmark: the least a Qt program can do to
// show the session's variables, a QTableView over a small model of the
// process environment in a window of the editor's default size, started with
// the same application attributes as the editor, so that the comparison
// measures the editor's own work.

#include <QAbstractTableModel>
#include <QApplication>
#include <QProcessEnvironment>
#include <QTableView>
#include <QVector>

namespace {

class EnvironmentModel : public QAbstractTableModel
{
public:
    EnvironmentModel()
    {
        const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QStringList names = environment.keys();
        for (const QString &name : names)
            rows.append({name, environment.value(name)});
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : rows.size();
    }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : 4; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return QVariant();
        switch (index.column()) {
        case 0:
            return rows.at(index.row()).first;
        case 1:
            return rows.at(index.row()).second;
        case 2:
            return QStringLiteral("System");
        default:
            return QString();
        }
    }

private:
    QVector<QPair<QString, QString>> rows;
};

} // namespace

int main(int argc, char *argv[])
{
    // As the editor does (gui/app/main.cpp); startup.sh prints them.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    QApplication app(argc, argv);
    EnvironmentModel model;
    QTableView view;
    view.setModel(&model);
    view.resize(935, 650);
    view.show();
    return app.exec();
}
