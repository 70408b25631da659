#include "extract/FileList.h"

#include "runtime/RuntimeError.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

RuntimeError unreadable(const QString &folder, std::error_code code)
{
    qint32 number = PathFileAccessError;
    if (code == std::errc::no_such_file_or_directory || code == std::errc::not_a_directory)
        number = PathNotFound;
    else if (code == std::errc::permission_denied || code == std::errc::operation_not_permitted)
        number = PermissionDenied;
    return RuntimeError::naming(number, folder);
}

std::filesystem::path nativePath(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

/// The names of the entries that `wanted(entry, name)` takes.
template <typename Wanted>
QStringList names(const QString &folder, Wanted wanted)
{
    std::error_code code;
    std::filesystem::directory_iterator entries(nativePath(folder), code);
    QStringList found;
    while (!code && entries != std::filesystem::directory_iterator()) {
        const std::string &path = entries->path().native();
        const QByteArray written(path.c_str() + path.find_last_of('/') + 1);
        const QString name = QFile::decodeName(written);
        // One written in another encoding cannot be named: its text would lead to another file.
        if (QFile::encodeName(name) == written && wanted(*entries, name))
            found.append(name);
        entries.increment(code);
    }
    if (code)
        throw unreadable(folder, code);
    return found;
}

void sort(QStringList &names)
{
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
}

bool isFolder(const std::filesystem::directory_entry &entry)
{
    std::error_code code; // a link that leads nowhere is no folder
    return entry.is_directory(code);
}

/// What decides whether a file's name matches a pattern.
class Pattern
{
public:
    explicit Pattern(const QString &pattern)
        : mPattern(pattern), mHasWildcards(pattern.contains(u'*') || pattern.contains(u'?')),
          mExpression(mHasWildcards ? expression(pattern) : QString(),
                      QRegularExpression::CaseInsensitiveOption |
                          QRegularExpression::DotMatchesEverythingOption)
    {
    }

    bool matches(const QString &name) const
    {
        return mHasWildcards ? mExpression.match(name).hasMatch() : name == mPattern;
    }

private:
    static QString expression(const QString &pattern)
    {
        QString escaped = QRegularExpression::escape(pattern);
        escaped.replace(u"\\*"_s, u".*"_s).replace(u"\\?"_s, u"."_s);
        return QRegularExpression::anchoredPattern(escaped);
    }

    QString mPattern;
    bool mHasWildcards;
    QRegularExpression mExpression;
};

} // namespace

namespace FileList {

QStringList files(const QString &folder, const QString &pattern)
{
    const Pattern wanted(pattern);
    QStringList found = names(folder, [&wanted](const auto &entry, const QString &name) {
        return wanted.matches(name) && !isFolder(entry);
    });
    sort(found);
    return found;
}

QStringList folders(const QString &folder)
{
    QStringList found =
        names(folder, [](const auto &entry, const QString &) { return isFolder(entry); });
    sort(found);
    return found;
}

bool hasFile(const QString &folder, const QString &name)
{
    return !names(folder, [&name](const auto &entry, const QString &candidate) {
                return candidate == name && !isFolder(entry);
            }).isEmpty();
}

QString displayName(const QString &name)
{
    QString shown = name;
    for (QChar &c : shown) {
        if (c < u' ')
            c = QChar(0x2400 + c.unicode());
        else if (c == QChar(0x7f))
            c = QChar(0x2421);
    }
    return shown;
}

} // namespace FileList
