#include "hfm/offline/ApplicationChoices.h"

#include "hfm/offline/ApplicationSummary.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/UserLists.h"

namespace hfm::offline {

namespace {

void addLines(QList<QString> &lines, const Warnings &warnings)
{
    const QList<Warning> list = warnings.list();
    for (const Warning &warning : list)
        lines.append(withPlace(warning.file, warning.line, warning.text));
}

} // namespace

ApplicationChoices::ApplicationChoices(const QString &clusterFolder, const Clock &clock)
    : mApplications(findApplications(clusterFolder)), mClock(clock)
{
}

QList<QString> ApplicationChoices::names() const
{
    QList<QString> names;
    for (const ApplicationFiles &files : mApplications)
        names.append(files.name);
    return names;
}

ApplicationPreview ApplicationChoices::read(qsizetype position) const
{
    try {
        auto application = readApplication(mApplications[position], mClock.now());
        const Warnings &ofLists = application->userLists->check();
        const qint64 count = application->warnings.count() + ofLists.count();
        QList<QString> lines;
        addLines(lines, application->warnings);
        addLines(lines, ofLists);
        if (count > lines.size())
            lines.append(QStringLiteral("... and %1 more").arg(count - lines.size()));
        QString summary = summaryOf(*application, count);
        return {std::move(application), std::move(summary), std::move(lines)};
    } catch (const RuntimeError &error) {
        return {nullptr, error.description(), {}};
    }
}

} // namespace hfm::offline
