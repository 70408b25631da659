#include "appinfo/SharedMembers.h"

#include "appinfo/ArrayCounts.h"

#include <QHash>
#include <QStringBuilder>

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

void appendLine(hfm::Dimension &dimension, hfm::MemberId member, hfm::MemberId parent,
                QString &text)
{
    const QString label = dimension.GetMemberLabel(member);
    const QString parentLabel = dimension.GetMemberLabel(parent);
    const QStringView shownParent = isBlank(parentLabel) ? QStringView(u"<DimRoot>") : parentLabel;
    const QStringView mark = dimension.GetHasChildren(member) ? u" **" : u"";
    text += label % u" (" % shownParent % u')' % mark % u"\r\n";
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
            appendLine(dimension, occurrences.members[i], occurrences.parents[i], text);
    return text.isEmpty() ? u"No Shared Members Detected"_s : text;
}
