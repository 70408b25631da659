// What a dynamic member list costs that loops over all entities and asks two attributes of each,
// beside the same loop in CPython over dictionaries.
//
//   member_list [ENTITIES [ROUNDS]]     100000 entities at first
//
// The list's time is that of a whole run: the script's own statements, the array of all entities,
// the loop and the list that it makes. The peer's time is that of the loop alone.

#include "CpuTime.h"
#include "hfm/offline/AppFile.h"
#include "hfm/offline/Application.h"
#include "hfm/offline/UserLists.h"

#include <QBuffer>
#include <QProcess>

#include <algorithm>
#include <cstdio>

using namespace hfm::offline;

namespace {

/// The same entities as bench/member_list_dictionaries.py makes.
QByteArray metadata(int entities)
{
    static const char *const currencies[] = {"EUR", "USD", "GBP", "CHF"};
    static const char *const countries[] = {"FR", "US", "GB", "CH", "DE", "IT", "ES"};
    QByteArray members = "!CURRENCIES\nEUR;0\nUSD;0\nGBP;0\nCHF;0\n!MEMBERS=Entity\n"
                         "GROUP;EUR;N;N;N;;;;;;;DefaultParent=#root\n";
    QByteArray nodes = "!HIERARCHIES=Entity\n;GROUP\n";
    for (int i = 0; i < entities; ++i) {
        const QByteArray label = "E" + QByteArray::number(100000 + i);
        members += label + ';' + currencies[i % 4] + ";N;N;N;;" + countries[i % 7] +
                   ";;;;;DefaultParent=GROUP\n";
        nodes += "GROUP;" + label + '\n';
    }
    return members + nodes;
}

const char forEach[] = R"(Sub EnumMemberLists()
    Dim lists(1)
    If HS.Dimension = "Entity" Then
        lists(1) = "French in euros"
        HS.SetMemberLists lists
    End If
End Sub

Sub EnumMembersInList()
    Dim entities, entity
    entities = HS.Entity.List("GROUP", "[Base]")
    For Each entity In entities
        If HS.Entity.DefCurrency(entity) = "EUR" Then
            If HS.Entity.UD1(entity) = "FR" Then
                HS.AddMemberToList entity
            End If
        End If
    Next
End Sub
)";

const char byIndexes[] = R"(Sub EnumMemberLists()
    Dim lists(1)
    If HS.Dimension = "Entity" Then
        lists(1) = "French in euros"
        HS.SetMemberLists lists
    End If
End Sub

Sub EnumMembersInList()
    Dim entities, i
    entities = HS.Entity.List("GROUP", "[Base]")
    For i = LBound(entities) To UBound(entities)
        If HS.Entity.DefCurrency(entities(i)) = "EUR" And HS.Entity.UD1(entities(i)) = "FR" Then
            HS.AddMemberToList entities(i)
        End If
    Next
End Sub
)";

std::shared_ptr<const Application> applicationWith(int entities, const char *memberLists)
{
    QByteArray text = metadata(entities);
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    Warnings warnings;
    ApplicationDraft draft(warnings);
    readMetadataFile(file, draft);
    draft.memberListFile = {memberLists, 1};
    return finishApplication(draft, {}, 2012);
}

struct Measured
{
    qsizetype members = 0;
    double milliseconds = 0;
};

/// The list is made anew each time; the script is read and the list is named before.
Measured measure(int entities, int rounds, const char *memberLists)
{
    const auto application = applicationWith(entities, memberLists);
    Measured measured;
    std::vector<std::unique_ptr<UserLists>> lists;
    for (int round = 0; round < rounds; ++round) {
        lists.push_back(std::make_unique<UserLists>(*application));
        lists.back()->lists(DimensionKind::Entity);
    }
    measured.milliseconds = cpuMilliseconds(rounds, [&] {
        measured.members = lists.back()->members(DimensionKind::Entity, 1)->size();
        lists.pop_back();
    });
    return measured;
}

/// What the peer prints: the number of members found and the milliseconds of each of its loops.
QList<QByteArray> python(int entities, int rounds)
{
    const QString path = QStringLiteral(BENCH_FOLDER "/member_list_dictionaries.py");
    QProcess process;
    process.start(QStringLiteral("python3"),
                  {path, QString::number(entities), QString::number(rounds)});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("python3 %s failed", qPrintable(path));
    return process.readAllStandardOutput().split(' ');
}

} // namespace

int main(int argc, char **argv)
{
    const int entities = argc > 1 ? QByteArrayView(argv[1]).toInt() : 100'000;
    const int rounds = argc > 2 ? std::max(1, QByteArrayView(argv[2]).toInt()) : 21;
    const Measured each = measure(entities, rounds, forEach);
    const Measured byIndex = measure(entities, rounds, byIndexes);
    const QList<QByteArray> peer = python(entities, rounds);
    if (peer.value(0).toLongLong() != each.members || byIndex.members != each.members)
        qFatal("the lists differ");

    std::printf("%d entities, %lld of them in the list\n", entities, qint64(each.members));
    const auto line = [&](const char *what, double milliseconds, double peerMilliseconds) {
        std::printf("%-34s %7.2f ms  %6.1f ns an entity", what, milliseconds,
                    milliseconds * 1e6 / entities);
        if (peerMilliseconds > 0)
            std::printf("   the peer takes %.2f times as long", peerMilliseconds / milliseconds);
        std::printf("\n");
    };
    line("list, For Each and nested Ifs", each.milliseconds, peer.value(1).toDouble());
    line("python, for and nested ifs", peer.value(1).toDouble(), 0);
    line("list, by index with And", byIndex.milliseconds, peer.value(2).toDouble());
    line("python, by index with and", peer.value(2).toDouble(), 0);
    return 0;
}
