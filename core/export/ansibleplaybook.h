#pragma once

#include "core/save/saveplan.h"

#include <QByteArray>
#include <QString>

// A playbook that makes, on any machine, the change a save would make here:
// for every file the save writes, ansible.builtin.lineinfile tasks that
// rewrite exactly the lines the save rewrites (the first "NAME=" of a line to
// its end, "export ... NAME=" blanked, an "export NAME=VALUE" line put first
// where none holds it); where such tasks would not give the save's bytes
// here (several lines of a name, line ends the save changes), one
// ansible.builtin.blockinfile task with marker lines naming this program.
namespace AnsiblePlaybook {

struct Task
{
    QString file;
    bool lineByLine = true; // lineinfile tasks; false: one blockinfile
};

// `input` is what the plan was made from (the values are taken from it).
QByteArray of(const SavePlan &plan, const SaveInput &input, const QString &home,
              QList<Task> *tasks = nullptr);

} // namespace AnsiblePlaybook
