#include "viewer/MemberPaths.h"

#include "runtime/RuntimeError.h"

#include <QSet>
#include <QStringBuilder>

#include <limits>

using hfm::MemberId;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint32 outOfStackSpace = 28;

/// A parent whose children are being read.
struct OpenParent
{
    QList<MemberId> children;
    qsizetype next;
    MemberId member;
    qint32 position;
};

MemberId toMemberId(QStringView text)
{
    bool isNumber = false;
    const qlonglong number = text.trimmed().toLongLong(&isNumber);
    if (!isNumber)
        throw RuntimeError(TypeMismatch);
    if (number < std::numeric_limits<MemberId>::min() ||
        number > std::numeric_limits<MemberId>::max())
        throw RuntimeError(Overflow);
    return MemberId(number);
}

} // namespace

QString memberPathEntry(MemberId parent, QStringView parentLabel, MemberId member,
                        QStringView label)
{
    return QString::number(parent) % u'_' % parentLabel % u'#' % QString::number(member) % u'_' %
           label;
}

// The walk keeps its own stack: hierarchies can be deeper than the thread's.
void MemberPaths::read(hfm::Dimension &dimension, qint32 most)
{
    mOccurrences.clear();
    mLabels = {};
    std::vector<OpenParent> open;
    QSet<MemberId> openMembers; // parents alone: a base member ends every way down
    const auto openParent = [&](MemberId member, qint32 position) {
        QList<MemberId> children = dimension.EnumChildMembers(hfm::allChildren, member);
        if (children.isEmpty())
            return;
        if (openMembers.contains(member))
            throw RuntimeError(outOfStackSpace, u"Tessaly"_s, u"Out of stack space"_s);
        openMembers.insert(member);
        open.push_back({std::move(children), 0, member, position});
    };

    openParent(hfm::rootMember, none);
    while (!open.empty()) {
        OpenParent &parent = open.back();
        if (parent.next == parent.children.size()) {
            openMembers.remove(parent.member);
            open.pop_back();
            continue;
        }
        if (count() == most)
            throw RuntimeError(OutOfMemory);
        const MemberId child = parent.children.at(parent.next++);
        QString label = dimension.GetMemberLabel(child);
        const bool splitsChildren = label.contains(u'#');
        mOccurrences.push_back(
            {child, parent.position, mLabels.append(std::move(label)), splitsChildren});
        openParent(child, count() - 1); // invalidates `parent`
    }
}

QString MemberPaths::entry(qint32 position) const
{
    const Occurrence &occurrence = at(position);
    if (occurrence.parent == none)
        return memberPathEntry(hfm::rootMember, rootPathLabel, occurrence.member,
                               occurrence.label.toString());
    const Occurrence &parent = at(occurrence.parent);
    return memberPathEntry(parent.member, parent.label.toString(), occurrence.member,
                           occurrence.label.toString());
}

QString MemberPaths::parentPart(qint32 position) const
{
    const QString text = entry(position);
    return text.first(text.indexOf(u'#'));
}

QString MemberPaths::childPart(qint32 position) const
{
    const QString text = entry(position);
    return text.sliced(text.indexOf(u'#') + 1);
}

bool MemberPaths::canBeFound(qint32 position) const
{
    const Occurrence &occurrence = at(position);
    return !occurrence.splitsChildren &&
           (occurrence.parent == none || !at(occurrence.parent).splitsChildren);
}

MemberId MemberPaths::memberId(qint32 position) const
{
    const Occurrence &occurrence = at(position);
    if (occurrence.parent == none || !at(occurrence.parent).splitsChildren)
        return occurrence.member;
    const QString text = childPart(position);
    return toMemberId(QStringView(text).first(text.indexOf(u'_')));
}
