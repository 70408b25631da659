#include "hfm/offline/ApplicationSummary.h"

#include "hfm/offline/UserLists.h"

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
QString namesLine(const QString &what, const QList<QString> &names, qsizetype count)
{
    const QString line = QStringLiteral("%1: %2").arg(what, QString::number(count));
    if (names.isEmpty())
        return line;
    const QString more = names.size() < count ? QStringLiteral(", ...") : QString();
    return QStringLiteral("%1 (%2%3)").arg(line, names.join(QStringLiteral(", ")), more);
}

QString namesLine(const QString &what, const Labels &names)
{
    constexpr qint32 most = 10;
    QList<QString> first;
    for (qint32 i = 0; i < std::min(names.count(), most); ++i)
        first.append(names.text(i));
    return namesLine(what, first, names.count());
}

/// The lists of one dimension; nothing where it has none.
void addLists(QList<QString> &lines, const Application &application, DimensionKind kind)
{
    constexpr qsizetype most = 50;
    const std::vector<UserList> &lists = application.userLists->lists(kind);
    QList<QString> first;
    for (size_t i = 0; i < std::min(lists.size(), size_t(most)); ++i)
        first.append(lists[i].name);
    if (!lists.empty())
        lines.append(namesLine(QStringLiteral("Member lists of %1").arg(dimensionName(kind)), first,
                               qsizetype(lists.size())));
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
    for (const DimensionKind kind : allDimensionKinds)
        addLists(lines, application, kind);
    const StoredSecurity &security = application.security;
    lines.append(namesLine(QStringLiteral("Users and groups"), security.users));
    lines.append(namesLine(QStringLiteral("Roles"), security.roles));
    lines.append(namesLine(QStringLiteral("Security classes"), security.classes));
    lines.append(QStringLiteral("Warnings: %1").arg(warnings));
    return lines.join(QLatin1Char('\n'));
}

} // namespace hfm::offline
