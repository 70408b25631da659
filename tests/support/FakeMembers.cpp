#include "support/FakeMembers.h"

using hfm::MemberId;

FakeMembers::FakeMembers(const QString &outline)
{
    struct Level
    {
        qsizetype indentation;
        MemberId member;
    };
    QList<Level> above;
    for (const QString &line : outline.split(u'\n')) {
        qsizetype indentation = 0;
        while (indentation < line.size() && line[indentation] == u' ')
            ++indentation;
        if (indentation == line.size())
            continue;
        while (!above.isEmpty() && above.last().indentation >= indentation)
            above.removeLast();
        const MemberId parent = above.isEmpty() ? hfm::rootMember : above.last().member;
        above.append({indentation, add(parent, line.mid(indentation))});
    }
}

MemberId FakeMembers::add(MemberId parent, const QString &line)
{
    const MemberId id = addUnplaced(line);
    if (mEdges.contains({parent, id}))
        return id;
    mEdges.insert({parent, id});
    (parent == hfm::rootMember ? mTopLevel : mMembers[parent].children).append(id);
    if (mMembers[id].parents.isEmpty())
        mMembers[id].defaultParent = parent;
    mMembers[id].parents.append(parent);
    return id;
}

MemberId FakeMembers::addUnplaced(const QString &line)
{
    QStringList fields = line.split(u'|');
    const QString label = fields.takeFirst();
    const auto known = mIds.constFind(label.toCaseFolded());
    if (known != mIds.cend())
        return *known;
    const MemberId id = count();
    mIds.insert(label.toCaseFolded(), id);
    mMembers.append({label, fields, {}, {}, hfm::rootMember});
    return id;
}

MemberId FakeMembers::find(const QString &label) const
{
    return mIds.value(label.toCaseFolded(), -1);
}

const QList<MemberId> &FakeMembers::childrenOf(MemberId parent) const
{
    return parent == hfm::rootMember ? mTopLevel : mMembers[parent].children;
}

void FakeMembers::walk(MemberId top, bool once, const Visit &visit) const
{
    struct Step
    {
        MemberId parent;
        MemberId member;
        qint32 depth;
    };
    QList<Step> ahead;
    const auto push = [&](MemberId parent, qint32 depth) {
        const QList<MemberId> &children = childrenOf(parent);
        for (auto child = children.crbegin(); child != children.crend(); ++child)
            ahead.append({parent, *child, depth});
    };
    QSet<MemberId> seen;
    push(top, 1);
    while (!ahead.isEmpty()) {
        const Step step = ahead.takeLast();
        if (once && seen.contains(step.member))
            continue;
        seen.insert(step.member);
        visit(step.parent, step.member, step.depth);
        push(step.member, step.depth + 1);
    }
}

QList<MemberId> FakeMembers::below(MemberId top, bool once, bool baseOnly) const
{
    QList<MemberId> found;
    walk(top, once, [&](MemberId, MemberId member, qint32) {
        if (!baseOnly || childrenOf(member).isEmpty())
            found.append(member);
    });
    return found;
}
