// How long the analyses of the application information take with the offline client, and how long
// the three searches take when every entry is compared with every other one. Times are the
// processor's; each search is checked to find the same either way.

#include "appinfo/BaseMemberCompare.h"
#include "appinfo/Duplicates.h"
#include "appinfo/PairwiseAnalyses.h"
#include "appinfo/ParentLabels.h"
#include "appinfo/SharedMembers.h"
#include "appinfo/Statistics.h"
#include "CpuTime.h"
#include "GeneratedApplication.h"
#include "shell/ListMembers.h"

#include <cstdio>

namespace {

constexpr int rounds = 9;

std::shared_ptr<hfm::Dimension> entities(qint32 members, qint32 edges)
{
    generator::Request request;
    request.members = members;
    request.edges = edges;
    return sessionOn(request)->GetMetadata()->GetEntityDimension();
}

hfm::MemberId topOf(hfm::Dimension &dimension)
{
    return dimension.EnumChildMembers(hfm::allChildren, hfm::rootMember).first();
}

template <typename Linear, typename Pairwise>
void compare(const char *name, qsizetype occurrences, Linear linear, Pairwise pairwise)
{
    if (linear() != pairwise())
        qFatal("%s: the two forms differ", name);
    const double fast = cpuMilliseconds(rounds, linear);
    const double slow = cpuMilliseconds(3, pairwise);
    std::printf("%-20s %9lld %10.2f %12.1f %9.0f\n", name, static_cast<long long>(occurrences),
                fast, slow, slow / fast);
}

void compareSearches(qint32 occurrences)
{
    // A tenth of the edges are further parents of base members.
    const auto dimension = entities(occurrences - occurrences / 10, occurrences);
    hfm::Dimension &entity = *dimension;
    const hfm::MemberId top = topOf(entity);
    const QString topLabel = entity.GetMemberLabel(top);

    compare(
        "duplicates", entity.EnumMembersBelow(top, hfm::EveryOccurrence).size(),
        [&] {
            QString text;
            Duplicates::append(entity, topLabel, text);
            return text;
        },
        [&] { return Pairwise::duplicates(entity, top); });
    compare(
        "base member compare", entity.EnumBaseMembers(top, hfm::EveryOccurrence).size(),
        [&] {
            QString text;
            BaseMemberCompare::append(entity, topLabel, topLabel, text);
            return text;
        },
        [&] { return Pairwise::missing(entity, top, top); });
    const hfm::Occurrences table = SharedMembers::occurrences(entity);
    compare(
        "shared members", table.members.size(),
        [&] { return SharedMembers::report(entity, SharedMembers::occurrences(entity)); },
        [&] {
            hfm::Occurrences walked;
            Pairwise::addOccurrences(entity, hfm::rootMember, walked);
            return Pairwise::sharedMembers(entity, walked);
        });
}

template <typename Action>
void measure(const char *name, qsizetype members, Action action)
{
    const double time = cpuMilliseconds(rounds, action);
    std::printf("%-20s %9lld %10.2f %12.0f\n", name, static_cast<long long>(members), time,
                time / double(members) * 1e6);
}

void measureLists(qint32 members)
{
    const auto dimension = entities(members, members);
    const QList<hfm::MemberId> all = dimension->EnumAllMembers();
    measure("parent list", members, [&] { parentLabels(*dimension); });
    measure("lines of a list", members, [&] { ListMembers::lines(*dimension, all); });
}

void measureStatistics(qint32 members)
{
    const auto dimension = entities(members, members + members / 5);
    const Statistics::Threshold threshold{QStringLiteral("20"), QLocale::c()};
    measure("statistics", members,
            [&] { Statistics::report(*dimension, Statistics::Section::WideParents, threshold); });
}

} // namespace

int main()
{
    std::printf("%-20s %9s %10s %12s %9s\n", "search", "entries", "ms", "pairwise ms", "times");
    for (const qint32 occurrences : {8'000, 16'000, 32'000})
        compareSearches(occurrences);
    std::printf("\n%-20s %9s %10s %12s\n", "reading", "members", "ms", "ns a member");
    for (const qint32 members : {8'000, 16'000, 32'000})
        measureLists(members);
    for (const qint32 members : {10'000, 100'000, 1'000'000})
        measureStatistics(members);
    return 0;
}
