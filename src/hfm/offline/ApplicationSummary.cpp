#include "hfm/offline/ApplicationSummary.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace hfm::offline {

namespace {

/// Names a file with its size and the time of its last change.
QString fileLine(const QString &path)
{
    const QFileInfo file(path);
    return QStringLiteral("  %1, %2 bytes, %3")
        .arg(file.fileName(), QLocale().toString(file.size()),
             file.lastModified().toString(QStringLiteral("yyyy-MM-dd hh:mm")));
}

void addFiles(QList<QString> &lines, const ApplicationFiles &files)
{
    lines.append(QStringLiteral("Files:"));
    for (const QString &path : {files.metadata, files.profile, files.security, files.memberLists}) {
        if (!path.isEmpty())
            lines.append(fileLine(path));
    }
    if (!files.otherMetadata.isEmpty())
        lines.append(fileLine(files.otherMetadata) + QStringLiteral(", not read"));
}

/// "WHAT: COUNT", and the names where there are some.
QString namesLine(const QString &what, const Labels &names)
{
    constexpr qint32 most = 10;
    QList<QString> told;
    for (qint32 i = 0; i < std::min(names.count(), most); ++i)
        told.append(names.text(i));
    if (names.count() > most)
        told.append(QStringLiteral("..."));
    const QString line = QStringLiteral("%1: %2").arg(what, QString::number(names.count()));
    return told.isEmpty() ? line
                          : QStringLiteral("%1 (%2)").arg(line, told.join(QStringLiteral(", ")));
}

} // namespace

QString summaryOf(const Application &application, qint64 warnings)
{
    QList<QString> lines;
    addFiles(lines, application.files);
    for (const StoredDimension &dimension : application.dimensions)
        lines.append(
            QStringLiteral("%1: %2 members")
                .arg(dimensionName(dimension.kind), QString::number(dimension.labels.count())));
    lines.append(
        QStringLiteral("Languages: %1").arg(application.languages.join(QStringLiteral(", "))));
    const StoredSecurity &security = application.security;
    lines.append(namesLine(QStringLiteral("Users and groups"), security.users));
    lines.append(namesLine(QStringLiteral("Roles"), security.roles));
    lines.append(namesLine(QStringLiteral("Security classes"), security.classes));
    lines.append(QStringLiteral("Warnings: %1").arg(warnings));
    return lines.join(QLatin1Char('\n'));
}

} // namespace hfm::offline
