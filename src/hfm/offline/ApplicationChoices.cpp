#include "hfm/offline/ApplicationChoices.h"

#include "hfm/offline/ReadingError.h"

#include <QFileInfo>

namespace hfm::offline {

namespace {

QString fileNames(const ApplicationFiles &files)
{
    QList<QString> names;
    for (const QString &path : {files.metadata, files.profile, files.security, files.memberLists}) {
        if (!path.isEmpty())
            names.append(QFileInfo(path).fileName());
    }
    return names.join(QStringLiteral(", "));
}

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

QString summaryOf(const Application &application)
{
    QList<QString> lines = {QStringLiteral("Files: %1").arg(fileNames(application.files))};
    for (const StoredDimension &dimension : application.dimensions)
        lines.append(
            QStringLiteral("%1: %2 members")
                .arg(dimensionName(dimension.kind), QString::number(dimension.labels.count())));
    lines.append(
        QStringLiteral("Languages: %1").arg(application.languages.join(QStringLiteral(", "))));
    lines.append(QStringLiteral("Warnings: %1").arg(application.warnings.count()));
    return lines.join(QLatin1Char('\n'));
}

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
        auto application = readApplication(mApplications[position], mClock.now().date().year());
        QString summary = summaryOf(*application);
        QList<QString> warnings = warningLines(application->warnings);
        return {std::move(application), std::move(summary), std::move(warnings)};
    } catch (const RuntimeError &error) {
        return {nullptr, error.description(), {}};
    }
}

} // namespace hfm::offline
