#include "core/save/savecommit.h"

#include "core/save/commit.h"
#include "core/settings/settingkeys.h"

#include <QSettings>

namespace {

void noteCopy(SaveReport &report, const SavePlan::File &file, const Result<CommittedFile> &written)
{
    if (written && !written->copyFailure.isEmpty())
        report.withoutCopies.append({file.path, Failure::Step::Copy, written->copyFailure});
}

} // namespace

SaveReport commitSave(const SavePlan &plan)
{
    SaveReport report;
    for (const SavePlan::Refusal &refusal : plan.refusals)
        report.problems.append({SaveReport::Problem::Refused, refusal.name,
                                Failure{QString(), Failure::Step::Check, refusal.reason}});
    if (!report.problems.isEmpty())
        return report;

    // Stored first, so descriptions survive a file that cannot be written.
    if (!plan.settings.isEmpty()) {
        QSettings settings;
        for (const SavePlan::Settings &entry : plan.settings) {
            settings.beginGroup(SettingKeys::variableGroup(entry.name));
            settings.setValue(QLatin1String(SettingKeys::descriptionKey), entry.description);
            settings.setValue(QLatin1String(SettingKeys::vipKey), entry.vip);
            settings.endGroup();
        }
    }

    const QList<int> order = plan.writeOrder();
    int next = 0; // into order
    for (; next < order.size() && !plan.files.at(order.at(next)).savedNames.isEmpty(); ++next) {
        const SavePlan::File &file = plan.files.at(order.at(next));
        const Result<CommittedFile> written = commitFile(file);
        noteCopy(report, file, written);
        if (!written) {
            report.problems.append(
                {SaveReport::Problem::SavedWrite, file.savedNames.first(), written.failure()});
            return report;
        }
    }
    if (plan.stopped) {
        report.problems.append({SaveReport::Problem::SavedOpen, plan.stoppedName,
                                Failure{plan.stoppedPath, Failure::Step::Open, plan.stoppedError}});
        return report;
    }
    report.rowsSaved = true;

    // The rest are files of deletions, written as the deletions first reach
    // them; a deletion whose file cannot be opened is said where it comes.
    for (int d = 0; d < plan.deletions.size(); ++d) {
        const SavePlan::Deletion &deletion = plan.deletions.at(d);
        if (deletion.file < 0) {
            report.problems.append({SaveReport::Problem::DeletedOpen, deletion.name,
                                    Failure{deletion.path, Failure::Step::Open, deletion.error}});
            continue;
        }
        if (next >= order.size() || order.at(next) != deletion.file)
            continue; // written already, or unchanged
        const Result<CommittedFile> written = commitFile(plan.files.at(deletion.file));
        noteCopy(report, plan.files.at(deletion.file), written);
        ++next;
        if (!written)
            report.problems.append(
                {SaveReport::Problem::DeletedWrite, deletion.name, written.failure()});
    }
    return report;
}
