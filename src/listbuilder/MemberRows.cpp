#include "listbuilder/MemberRows.h"

#include "runtime/Counter16.h"

#include <QStringBuilder>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qint16 firstLanguage = 0;
}

QString MemberRows::ofMember(hfm::Dimension &dimension, hfm::MemberId member, const QString &label)
{
    return label % " - "_L1 % dimension.GetMemberDescription(member, firstLanguage);
}

QStringList MemberRows::ofAllMembers(hfm::Dimension &dimension)
{
    const QList<hfm::MemberId> members = dimension.EnumAllMembers();
    const qint16 count = Counter16(members.size()).value();
    QStringList rows;
    rows.reserve(count);
    for (qint16 i = 0; i < count; ++i)
        rows.append(ofMember(dimension, members[i], dimension.GetMemberLabel(members[i])));
    return rows;
}

QString MemberRows::labelPart(const QString &row)
{
    const qsizetype length = row.indexOf(u'-') - 1;
    if (length < 0)
        throw RuntimeError(InvalidProcedureCall);
    return row.first(length);
}
