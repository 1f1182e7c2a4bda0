#include "core/preview/changepreview.h"

#include "core/lookup/whereset.h"
#include "core/preview/frozenreferences.h"

ChangePreview ChangePreview::of(const SaveInput &input, int shellKind, const QString &home,
                                bool checkSyntax, const FileReader &read)
{
    const SavePlan plan = planSave(input, read);
    const auto shown = [&home](const QString &path) {
        return WhereSet::displayPath(path, home);
    };

    ChangePreview preview;
    for (const SavePlan::Refusal &refusal : plan.refusals)
        preview.notices.append(
            tr("The value of %1 cannot be written into a start-up file: %2. The save will "
               "write nothing.")
                .arg(refusal.name, refusal.reason));
    for (const SavePlan::Redirect &redirect : plan.redirects)
        preview.notices.append(
            tr("%1 is saved into %2, because its file %3 cannot be opened: %4.")
                .arg(redirect.name, shown(redirect.path), shown(redirect.origin), redirect.error));
    if (plan.stopped)
        preview.notices.append(
            tr("The save will stop at %1: %2 cannot be opened: %3. "
               "Nothing after it is saved and no variable is deleted.")
                .arg(plan.stoppedName, shown(plan.stoppedPath), plan.stoppedError));
    for (const SavePlan::Deletion &deletion : plan.deletions) {
        if (deletion.file < 0)
            preview.notices.append(tr("%1 cannot be deleted: its file %2 cannot be opened: %3.")
                                       .arg(deletion.name, shown(deletion.path), deletion.error));
    }

    const QList<int> order = plan.writeOrder();
    for (int i : order) {
        const SavePlan::File &planned = plan.files.at(i);
        File file;
        file.path = planned.path;
        file.created = !planned.existed;
        file.before = planned.before;
        file.after = planned.after;
        file.surprises = Surprises::find(planned.before, planned.after, planned.savedNames,
                                         planned.deletedNames);
        const QList<FrozenReference> frozen =
            FrozenReference::find(planned.before, planned.after, planned.savedNames);
        for (const FrozenReference &reference : frozen)
            preview.notices.append(tr("%1 line %2 refers to %3; the save writes %4 instead.")
                                       .arg(shown(planned.path), QString::number(reference.line),
                                            reference.reference, reference.written));
        const QString shell = ShellCheck::shellFor(planned.path, shellKind);
        if (checkSyntax) {
            file.check = ShellCheck::run(shell, planned.after);
            if (file.check.outcome == ShellCheck::Fails && !planned.before.isEmpty())
                file.check.failsNow =
                    ShellCheck::run(shell, planned.before).outcome == ShellCheck::Fails;
        } else {
            file.check.shell = shell;
        }
        preview.files.append(file);
    }
    return preview;
}
