#include "hfm/offline/AttributeReader.h"

#include "hfm/offline/FieldValues.h"

namespace hfm::offline {

EntityRecord AttributeReader::entity(const MemberRecord &record)
{
    EntityRecord entity;
    entity.userDefined = userDefined(record);
    entity.currency =
        mDraft.entityCurrencies.mention(record.field(Column::DefCurrency), record.place());
    entity.securityClass = securityClass(record);
    entity.allowAdjs = flag(record, Column::AllowAdjs);
    entity.isICP = flag(record, Column::IsICP);
    entity.allowAdjFromChildren = flag(record, Column::AllowAdjFromChildren);
    return entity;
}

AccountRecord AttributeReader::account(const MemberRecord &record)
{
    AccountRecord account;
    account.userDefined = userDefined(record);
    account.securityClass = securityClass(record);
    account.type = accountType(record);
    account.isICP = accountIsICP(record);
    account.decimalPlaces = decimalPlaces(record);
    account.isCalculated = flag(record, Column::IsCalculated);
    account.isConsolidated = flag(record, Column::IsConsolidated);
    account.usesLineItems = flag(record, Column::UsesLineItems);
    for (unsigned k = 0; k < account.topMembers.size(); ++k) {
        const QByteArrayView top = record.field(ofCustom(Column::TopMember1, k));
        account.topMembers[k] = mDraft.topMembers[k].mention(top, record.place());
        if (flag(record, ofCustom(Column::EnableAggr1, k)))
            account.aggregatesCustoms = quint8((account.aggregatesCustoms | (1U << k)) & 0xFU);
    }
    return account;
}

CustomRecord AttributeReader::custom(const MemberRecord &record)
{
    CustomRecord custom;
    custom.userDefined = userDefined(record);
    custom.securityClass = securityClass(record);
    return custom;
}

TextRef AttributeReader::holding(const MemberRecord &record)
{
    return mDraft.pool.intern(record.field(Column::HoldingCompany));
}

UserDefined AttributeReader::userDefined(const MemberRecord &record)
{
    for (unsigned i = 0; i < mLastUserDefined.size(); ++i) {
        const QByteArrayView text = record.field(Column(int(Column::UserDefined1) + int(i)));
        TextRef &ref = mLastUserDefined[i];
        if (mDraft.arena->at(ref) != text)
            ref = mDraft.pool.intern(text);
    }
    return mLastUserDefined;
}

qint32 AttributeReader::securityClass(const MemberRecord &record)
{
    return mDraft.securityClasses.mention(record.field(Column::SecurityClass), record.place());
}

bool AttributeReader::flag(const MemberRecord &record, Column column)
{
    const QByteArrayView text = record.field(column);
    if (const auto value = flagValue(text))
        return *value;
    mDraft.warnings.add(record.place(), [&] {
        return QStringLiteral("%1 is neither Y nor N; it is read as N.").arg(quoted(text));
    });
    return false;
}

qint8 AttributeReader::accountType(const MemberRecord &record)
{
    const QByteArrayView text = record.field(Column::AccountType);
    const qint8 type = accountTypeCode(text);
    if (type == unknownAccountType)
        mDraft.warnings.add(record.place(), [&] {
            return QStringLiteral("%1 is no account type.").arg(quoted(text));
        });
    return type;
}

qint8 AttributeReader::accountIsICP(const MemberRecord &record)
{
    const QByteArrayView text = record.field(Column::IsICP);
    if (sameWord(text, "R"))
        return 1;
    if (const auto value = flagValue(text))
        return *value ? -1 : 0;
    mDraft.warnings.add(record.place(), [&] {
        return QStringLiteral("%1 is neither Y nor N nor R; it is read as N.").arg(quoted(text));
    });
    return 0;
}

qint16 AttributeReader::decimalPlaces(const MemberRecord &record)
{
    const QByteArrayView text = record.field(Column::NumDecimalPlaces);
    const WholeNumber number = wholeNumber(text);
    if (!number.isWhole)
        mDraft.warnings.add(record.place(), [&] {
            return QStringLiteral("%1 is no number of decimal places; it is read as %2.")
                .arg(quoted(text), QString::number(number.value));
        });
    return number.value;
}

} // namespace hfm::offline
