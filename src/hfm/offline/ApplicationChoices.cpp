#include "hfm/offline/ApplicationChoices.h"

#include "hfm/offline/ApplicationSummary.h"
#include "hfm/offline/ReadingError.h"

namespace hfm::offline {

namespace {

QList<QString> warningLines(const Warnings &warnings)
{
    QList<QString> lines;
    const QList<Warning> list = warnings.list();
    for (const Warning &warning : list)
        lines.append(withPlace(warning.file, warning.line, warning.text));
    if (warnings.count() > list.size())
        lines.append(QStringLiteral("... and %1 more").arg(warnings.count() - list.size()));
    return lines;
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
        QString summary = summaryOf(*application, application->warnings.count());
        QList<QString> warnings = warningLines(application->warnings);
        return {std::move(application), std::move(summary), std::move(warnings)};
    } catch (const RuntimeError &error) {
        return {nullptr, error.description(), {}};
    }
}

} // namespace hfm::offline
