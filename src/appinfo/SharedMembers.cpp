#include "appinfo/SharedMembers.h"

#include "appinfo/ArrayCounts.h"

#include <QHash>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A member whose children are being walked over.
struct OpenParent
{
    hfm::MemberId member;
    QList<hfm::MemberId> children;
    qsizetype next = 0;
};

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' '; });
}

QString line(hfm::Dimension &dimension, hfm::MemberId member, hfm::MemberId parent)
{
    const QString label = dimension.GetMemberLabel(member);
    const QString parentLabel = dimension.GetMemberLabel(parent);
    const bool hasChildren = dimension.GetHasChildren(member);
    return label + u" ("_s + (isBlank(parentLabel) ? u"<DimRoot>"_s : parentLabel) + u')' +
           (hasChildren ? u" **"_s : QString()) + u"\r\n"_s;
}

} // namespace

hfm::Occurrences SharedMembers::occurrences(hfm::Dimension &dimension)
{
    hfm::Occurrences found;
    Counter16 count;
    std::vector<OpenParent> open; // hierarchies can be deeper than the thread's stack
    const auto enter = [&](hfm::MemberId member) {
        QList<hfm::MemberId> children = dimension.EnumChildMembers(hfm::allChildren, member);
        countForWalk(children);
        open.push_back({member, std::move(children)});
    };
    enter(hfm::rootMember);
    while (!open.empty()) {
        OpenParent &parent = open.back();
        if (parent.next == parent.children.size()) {
            open.pop_back();
            continue;
        }
        const hfm::MemberId child = parent.children[parent.next++];
        ++count;
        found.members.append(child);
        found.parents.append(parent.member);
        enter(child); // invalidates `parent`
    }
    return found;
}

QString SharedMembers::report(hfm::Dimension &dimension, const hfm::Occurrences &occurrences)
{
    QHash<hfm::MemberId, qsizetype> toCome;
    toCome.reserve(occurrences.members.size());
    for (const hfm::MemberId member : occurrences.members)
        ++toCome[member];

    QString text;
    for (qsizetype i = 0; i < occurrences.members.size(); ++i)
        if (--toCome[occurrences.members[i]] > 0)
            text += line(dimension, occurrences.members[i], occurrences.parents[i]);
    return text.isEmpty() ? u"No Shared Members Detected"_s : text;
}
