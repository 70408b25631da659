// What opening a security file of 5,000 users, 2,000 classes and 1,000,000 records of access costs,
// beside a bare pass over the same bytes that finds line and field ends and converts them to
// UTF-16, and what the operations cost that the security view asks.
//
//   open_security [ROUNDS]

#include "BarePass.h"
#include "CpuTime.h"
#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/OfflineSecurity.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/SecurityFile.h"

#include <QTemporaryDir>

#include <cstdio>

namespace {

using namespace hfm::offline;

constexpr int users = 5000;
constexpr int classes = 2000;
constexpr int usersOfAClass = 500;

QByteArray userName(int user)
{
    static constexpr const char *directories[] = {"Native Directory", "CORP", "Alderbrook LDAP"};
    return "user" + QByteArray::number(user).rightJustified(4, '0') + '@' + directories[user % 3];
}

/// One of the hundreds of users that have access to a class: some of this department and some of
/// the next, so that neither classes nor users follow each other in the file.
int userOfClass(int securityClass, int i)
{
    return (securityClass * 37 + i * (i % 2 == 0 ? 1 : 7)) % users;
}

void writeSecurity(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    QByteArray text = "!FILE_FORMAT=2.0\r\n!VERSION=11.12\r\n!USERS_AND_GROUPS\r\n";
    for (int user = 0; user < users; ++user)
        text += userName(user) + "\r\n";
    text += "!SECURITY_CLASSES\r\n";
    for (int k = 0; k < classes; ++k)
        text += "SC_CLASS_" + QByteArray::number(k) + "\r\n";
    text += "!ROLE_ACCESS\r\n";
    for (int user = 0; user < users; ++user)
        text += "Load System;" + userName(user) + "\r\n";
    text += "!SECURITY_CLASS_ACCESS\r\n";
    static constexpr const char *access[] = {"None", "Metadata", "Read", "Promote", "All"};
    for (int k = 0; k < classes; ++k)
        for (int i = 0; i < usersOfAClass; ++i)
            text += "SC_CLASS_" + QByteArray::number(k) + ';' + userName(userOfClass(k, i)) + ';' +
                    access[(k + i) % 5] + ";N\r\n";
    if (file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(path));
}

std::shared_ptr<const Application> open(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qFatal("cannot open %s", qPrintable(path));
    Warnings warnings;
    ApplicationDraft draft(warnings);
    readSecurityFile(file, draft);
    return finishApplication(draft, {}, 2012);
}

} // namespace

int main(int argc, char **argv)
{
    const int rounds = argc > 1 ? std::max(1, QByteArrayView(argv[1]).toInt()) : 7;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("bench.sec"));
    writeSecurity(path);
    const double size = double(QFile(path).size());

    Extent extent;
    const double bare = cpuMilliseconds(rounds, [&] { extent = barePass(path); });
    std::shared_ptr<const Application> application;
    const double opening = cpuMilliseconds(rounds, [&] { application = open(path); });
    OfflineSecurity security(application);
    qint64 codes = 0;
    const double classView = cpuMilliseconds(rounds, [&] {
        for (hfm::ClassId k = 0; k < 100; ++k)
            codes += security.EnumClassAccess(k).codes.size();
    });
    const double userView = cpuMilliseconds(rounds, [&] {
        for (hfm::UserId user = 0; user < 100; ++user)
            codes += security.EnumUserClassAccess(user).codes.size();
    });
    if (security.EnumSecurityClasses().ids.size() != classes ||
        security.EnumClassAccess(0).names.size() != users)
        qFatal("the security file was not read as it was written");

    std::printf("file             %8.1f MB, %lld fields, %lld UTF-16 units\n", size / 1e6,
                extent.fields, extent.units);
    std::printf("warnings         %8lld\n", application->warnings.count());
    std::printf("bare pass        %8.1f ms\n", bare);
    std::printf("opening          %8.1f ms   %5.2f times the bare pass\n", opening, opening / bare);
    std::printf("access to class  %8.3f ms, of %d users\n", classView / 100, users);
    std::printf("access of user   %8.3f ms, to %d classes\n", userView / 100, classes);
    return codes > 0 ? 0 : 1;
}
