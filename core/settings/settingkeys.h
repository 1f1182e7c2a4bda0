#pragma once

#include <QString>
#include <QVariant>

class QSettings;

// Every key the program keeps in its settings store, named once, with the
// value a missing key reads as. Readers and writers open the application's
// default store (a QSettings constructed without arguments) and pass it in.
struct SettingKey
{
    const char *group;
    const char *name;
    QVariant defaultValue;

    // "group/name", as QSettings addresses a key outside any group.
    QString path() const;
    QVariant read(const QSettings &settings) const;
    void write(QSettings &settings, const QVariant &value) const;
};

namespace SettingKeys {

// The main window, written on an accepted close.
extern const SettingKey windowSize;
extern const SettingKey windowState;
// Widths of the visible columns Variable, Value, Origin and Description; 0 or
// less means the default.
extern const SettingKey columnWidths[4];

// The variable editor's size, written when it closes.
extern const SettingKey editorSize;
// The preferences dialog; its position is written but never read.
extern const SettingKey preferencesSize;
extern const SettingKey preferencesPosition;

// The lists of start-up files that the preferences dialog stores.
extern const SettingKey systemFiles;
extern const SettingKey bashUserFiles;
extern const SettingKey cshUserFiles;
// The user-files key of a shell kind, or null for a kind whose list is not
// stored.
const SettingKey *userFilesOf(int shellKind);

// What the user wrote for one variable, in the group "variables/NAME".
QString variableGroup(const QString &name);
QString variablesGroup(); // the group holding all of them
extern const char descriptionKey[];
extern const char vipKey[];

} // namespace SettingKeys
