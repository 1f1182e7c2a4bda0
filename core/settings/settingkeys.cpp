#include "core/settings/settingkeys.h"

#include "core/files/configfiles.h"

#include <QSettings>
#include <QSize>

QString SettingKey::path() const
{
    return QLatin1String(group) + QLatin1Char('/') + QLatin1String(name);
}

QVariant SettingKey::read(const QSettings &settings) const
{
    return settings.value(path(), defaultValue);
}

void SettingKey::write(QSettings &settings, const QVariant &value) const
{
    settings.setValue(path(), value);
}

namespace SettingKeys {

const SettingKey windowSize{"MainWindow", "size", QSize(935, 650)};
const SettingKey windowState{"MainWindow", "state", QVariant()};
const SettingKey columnWidths[4] = {
    {"tableView", "cVariableWidth", 230},
    {"tableView", "cValueWidth", 200},
    {"tableView", "cOriginWidth", 90},
    {"tableView", "cDescriptionWidth", 870},
};

const SettingKey editorSize{"uEditor", "size", QSize(400, 400)};
const SettingKey preferencesSize{"preferencesDialog", "size", QSize(400, 400)};
const SettingKey preferencesPosition{"preferencesDialog", "pos", QVariant()};

const SettingKey systemFiles{"configFiles", "system", QStringList()};
const SettingKey bashUserFiles{"configFiles", "bash", QStringList()};
const SettingKey cshUserFiles{"configFiles", "tcsh", QStringList()};

const SettingKey *userFilesOf(int shellKind)
{
    switch (shellKind) {
    case ConfigFiles::Bash:
        return &bashUserFiles;
    case ConfigFiles::Csh:
        return &cshUserFiles;
    default:
        return nullptr;
    }
}

QString variablesGroup()
{
    return QStringLiteral("variables");
}

QString variableGroup(const QString &name)
{
    return variablesGroup() + QLatin1Char('/') + name;
}

const char descriptionKey[] = "description";
const char vipKey[] = "vip";

} // namespace SettingKeys
