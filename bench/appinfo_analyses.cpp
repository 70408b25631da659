// How long the analyses of the application information take with the offline client, and how long
// the three searches take when every entry is compared with every other one. Times are the
// processor's; each search is checked to find the same either way.

#include "appinfo/BaseMemberCompare.h"
#include "appinfo/Duplicates.h"
#include "appinfo/PairwiseAnalyses.h"
#include "appinfo/ParentLabels.h"
#include "appinfo/SecurityAccess.h"
#include "appinfo/SharedMembers.h"
#include "appinfo/Statistics.h"
#include "CpuTime.h"
#include "GeneratedApplication.h"
#include "ManyNames.h"
#include "shell/ListMembers.h"

#include <cstdio>

namespace {

constexpr int rounds = 9;
constexpr qint32 most = 32'767; ///< entries that a search, a list or an answer may have

using Dimension = std::shared_ptr<hfm::Dimension>;

/// A tree of so many edges, a tenth of them further parents of base members.
generator::Request tree(qint32 edges)
{
    generator::Request request;
    request.members = edges - edges / 10;
    request.edges = edges;
    return request;
}

/// Two parents, FROM and TO, of so many base members each. Every tenth of FROM's is missing in TO.
Dimension twoParents(qint32 children)
{
    const auto write = [children](QFile &file) {
        QByteArray members = "!FILE_FORMAT=11.12\r\n!VERSION=11.1.5033\r\n!MEMBERS=Entity\r\n"
                             "FROM\r\nTO\r\n";
        QByteArray hierarchy = "!HIERARCHIES=Entity\r\n;FROM\r\n;TO\r\n";
        for (qint32 i = 0; i < children; ++i) {
            const QByteArray both = "ENTITY_" + QByteArray::number(i);
            const bool isMissing = i % 10 == 9;
            members += both + "\r\n" + (isMissing ? both + "_TO\r\n" : "");
            hierarchy += "FROM;" + both + "\r\nTO;" + both + (isMissing ? "_TO\r\n" : "\r\n");
        }
        file.write(members + hierarchy);
    };
    return sessionOnWritten(write)->GetMetadata()->GetEntityDimension();
}

template <typename Linear, typename Pairwise>
void compare(const char *name, qsizetype entries, qsizetype found, Linear linear, Pairwise pairwise)
{
    if (linear() != pairwise())
        qFatal("%s: the two forms differ", name);
    const double fast = cpuMilliseconds(rounds, linear);
    const double slow = cpuMilliseconds(3, pairwise);
    std::printf("%-20s %8lld %8lld %9.2f %9.0f %12.1f %7.0f\n", name,
                static_cast<long long>(entries), static_cast<long long>(found), fast,
                fast / double(entries) * 1e6, slow, slow / fast);
}

void compareDuplicates(qint32 entries)
{
    // The top member itself is none of the members below it.
    const Dimension dimension = sessionOn(tree(entries + 1))->GetMetadata()->GetEntityDimension();
    const hfm::MemberId top =
        dimension->EnumChildMembers(hfm::allChildren, hfm::rootMember).first();
    const auto search = [&, label = dimension->GetMemberLabel(top)] {
        QString text;
        Duplicates::append(*dimension, label, text);
        return text;
    };
    compare("duplicates", dimension->EnumMembersBelow(top, hfm::EveryOccurrence).size(),
            search().count(u'\n'), search, [&] { return Pairwise::duplicates(*dimension, top); });
}

void compareBaseMembers(qint32 entries)
{
    const Dimension dimension = twoParents(entries);
    const QString from = QStringLiteral("FROM");
    const QString to = QStringLiteral("TO");
    const hfm::MemberId fromId = dimension->GetMemberId(from);
    const auto search = [&] {
        QString text;
        BaseMemberCompare::append(*dimension, from, to, text);
        return text;
    };
    compare("base member compare", dimension->EnumBaseMembers(fromId, hfm::EveryOccurrence).size(),
            search().count(u'\n'), search,
            [&] { return Pairwise::missing(*dimension, fromId, dimension->GetMemberId(to)); });
}

void compareSharedMembers(qint32 entries)
{
    const Dimension dimension = sessionOn(tree(entries))->GetMetadata()->GetEntityDimension();
    const auto search = [&] {
        return SharedMembers::report(*dimension, SharedMembers::occurrences(*dimension));
    };
    compare("shared members", SharedMembers::occurrences(*dimension).members.size(),
            search().count(u'\n'), search, [&] {
                hfm::Occurrences walked;
                Pairwise::addOccurrences(*dimension, hfm::rootMember, walked);
                return Pairwise::sharedMembers(*dimension, walked);
            });
}

template <typename Action>
void measure(const char *name, qsizetype entries, Action action)
{
    const double time = cpuMilliseconds(rounds, action);
    std::printf("%-26s %8lld %9.2f %9.0f\n", name, static_cast<long long>(entries), time,
                time / double(entries) * 1e6);
}

void measureLists(qint32 members)
{
    generator::Request request;
    request.members = members;
    const Dimension dimension = sessionOn(request)->GetMetadata()->GetEntityDimension();
    const QList<hfm::MemberId> all = dimension->EnumAllMembers();
    measure("parent list", all.size(), [&] { parentLabels(*dimension); });
    measure("lines of a list", all.size(), [&] { ListMembers::lines(*dimension, all); });
}

void measureSecurity(qint32 names)
{
    ManyNames security(names);
    const QString any = QStringLiteral("any");
    measure("users of a role", names, [&] { SecurityAccess::ofRole(security, any); });
    measure("users of a class", names, [&] { SecurityAccess::ofClass(security, any); });
    measure("roles, classes of a user", names, [&] { SecurityAccess::ofUser(security, any); });
}

void measureStatistics(const char *name, hfm::Dimension &dimension, Statistics::Section section)
{
    const Statistics::Threshold threshold{QStringLiteral("20"), QLocale::c()};
    measure(name, dimension.EnumAllMembers().size(),
            [&] { Statistics::report(dimension, section, threshold); });
}

/// The statistics of a dimension of so many members, with a currency for its section.
void measureStatistics(const char *name, const char *dimension, qint32 members,
                       Dimension (hfm::Metadata::*get)(), Statistics::Section section)
{
    generator::Request request = tree(members + members / 5);
    request.members = members;
    request.dimension = QLatin1StringView(dimension);
    const auto session = sessionOnWritten([&](QFile &file) {
        generator::generate(request, file);
        file.write("!CURRENCIES\r\nXTS\r\n");
    });
    measureStatistics(name, *(*session->GetMetadata().*get)(), section);
}

} // namespace

int main()
{
    using hfm::Metadata;
    using Statistics::Section;
    std::printf("%-20s %8s %8s %9s %9s %12s %7s\n", "search", "entries", "found", "ms", "ns/entry",
                "pairwise ms", "times");
    for (const qint32 entries : {8'000, 16'000, most}) {
        compareDuplicates(entries);
        compareBaseMembers(entries);
        compareSharedMembers(entries);
    }
    std::printf("\n%-26s %8s %9s %9s\n", "reading", "entries", "ms", "ns/entry");
    for (const qint32 entries : {8'000, 16'000, most}) {
        measureLists(entries);
        measureSecurity(entries);
    }
    for (const qint32 members : {10'000, 100'000, 1'000'000}) {
        measureStatistics("statistics of accounts", "Account", members,
                          &Metadata::GetAccountDimension, Section::SystemAccounts);
        measureStatistics("statistics of entities", "Entity", members,
                          &Metadata::GetEntityDimension, Section::WideParents);
        measureStatistics("statistics of Custom1", "Custom1", members,
                          &Metadata::GetCustom1Dimension, Section::CurrenciesAndConsolMethods);
        measureStatistics("statistics of Custom2", "Custom2", members,
                          &Metadata::GetCustom2Dimension, Section::Currencies);
        measureStatistics("statistics of Custom3", "Custom3", members,
                          &Metadata::GetCustom3Dimension, Section::None);
    }
    return 0;
}
