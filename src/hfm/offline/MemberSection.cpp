#include "hfm/offline/MemberSection.h"

#include "hfm/offline/FieldValues.h"

namespace hfm::offline {

MemberSection::MemberSection(ApplicationDraft &draft, DimensionKind kind, char delimiter)
    : mDraft(draft), mDimension(draft.dimension(kind)), mDelimiter(delimiter),
      mLayout(Layout::documented(kind, draft.customNames.size())), mDescriptions(draft)
{
}

void MemberSection::readColumns(const QList<QByteArrayView> &columns)
{
    mLayout = Layout::named(columns, mDraft.customNames);
}

void MemberSection::readRecord(QByteArrayView line, Place place)
{
    mPlace = place;
    mFields.split(line, mDelimiter);
    findParts();
    const QByteArrayView label = field(Column::Label);
    if (label.isEmpty()) {
        warn([] { return QStringLiteral("The record has no label; it is left out."); });
        return;
    }
    const MemberId id = mDimension.addRecord(label, place);
    if (id < 0) {
        warn([&] {
            return QStringLiteral("%1 has a record already; this one is left out.")
                .arg(quoted(label));
        });
        return;
    }
    if (mPositional > mLayout.count())
        warn([&] {
            return QStringLiteral("The record of %1 has %2 fields where %3 are known; the last "
                                  "ones are left out.")
                .arg(quoted(label), QString::number(mPositional), QString::number(mLayout.count()));
        });
    readAttributes(id);
    if (mDefaultParent >= 0)
        readDefaultParent(id);
    const qsizetype named = mDefaultParent >= 0 ? mDefaultParent + 1 : mPositional;
    mDimension.member(id).descriptions = mDescriptions.read(mFields, named, place);
}

/// The DefaultParent field tells where the attributes end. Records that have none of it have their
/// first description there, which is no attribute, because it holds a '='.
void MemberSection::findParts()
{
    mDefaultParent = mFields.defaultParentIndex();
    mPositional = mDefaultParent;
    if (mDefaultParent >= 0)
        return;
    const qsizetype from = mLayout.hasDefaultParent() ? mLayout.count() : 1;
    for (mPositional = std::min(from, mFields.count()); mPositional < mFields.count();
         ++mPositional) {
        if (mFields.at(mPositional).contains('='))
            return;
    }
}

void MemberSection::readDefaultParent(MemberId id)
{
    QByteArrayView parent = defaultParentValue(mFields.at(mDefaultParent));
    if (mDelimiter == '#' && parent.isEmpty() && mFields.at(mDefaultParent + 1) == "root")
        ++mDefaultParent; // what was split is "#root"
    mDimension.setDefaultParent(id, parent, *mDraft.arena);
}

void MemberSection::readAttributes(MemberId id)
{
    const DimensionKind kind = mDimension.kind();
    if (kind == DimensionKind::Entity)
        recordOf(mDimension.entities, id) = entity();
    else if (kind == DimensionKind::Account)
        recordOf(mDimension.accounts, id) = account();
    else if (isCustom(kind))
        recordOf(mDimension.customs, id) = custom();
}

EntityRecord MemberSection::entity()
{
    EntityRecord record;
    record.userDefined = userDefined();
    record.currency = mDraft.entityCurrencies.mention(field(Column::DefCurrency), mPlace);
    record.securityClass = securityClass();
    record.allowAdjs = flag(Column::AllowAdjs);
    record.isICP = flag(Column::IsICP);
    record.allowAdjFromChildren = flag(Column::AllowAdjFromChildren);
    return record;
}

AccountRecord MemberSection::account()
{
    AccountRecord record;
    record.userDefined = userDefined();
    record.securityClass = securityClass();
    record.type = accountType();
    record.isICP = accountIsICP();
    record.decimalPlaces = decimalPlaces();
    record.isCalculated = flag(Column::IsCalculated);
    record.isConsolidated = flag(Column::IsConsolidated);
    record.usesLineItems = flag(Column::UsesLineItems);
    for (unsigned k = 0; k < record.topMembers.size(); ++k) {
        record.topMembers[k] =
            mDraft.topMembers[k].mention(field(ofCustom(Column::TopMember1, k)), mPlace);
        if (flag(ofCustom(Column::EnableAggr1, k)))
            record.aggregatesCustoms = quint8((record.aggregatesCustoms | (1U << k)) & 0xFU);
    }
    return record;
}

CustomRecord MemberSection::custom()
{
    CustomRecord record;
    record.userDefined = userDefined();
    record.securityClass = securityClass();
    return record;
}

/// Empty where the record has no such field.
QByteArrayView MemberSection::field(Column column) const
{
    const qsizetype index = mLayout.index(column);
    return index >= 0 && index < mPositional ? mFields.at(index) : QByteArrayView();
}

UserDefined MemberSection::userDefined()
{
    for (unsigned i = 0; i < mLastUserDefined.size(); ++i) {
        const QByteArrayView text = field(Column(int(Column::UserDefined1) + int(i)));
        TextRef &ref = mLastUserDefined[i];
        if (mDraft.arena->at(ref) != text)
            ref = mDraft.pool.intern(text);
    }
    return mLastUserDefined;
}

ClassId MemberSection::securityClass()
{
    return mDraft.securityClasses.mention(field(Column::SecurityClass), mPlace);
}

bool MemberSection::flag(Column column)
{
    const QByteArrayView text = field(column);
    if (const auto value = flagValue(text))
        return *value;
    warn([&] {
        return QStringLiteral("%1 is neither Y nor N; it is read as N.").arg(quoted(text));
    });
    return false;
}

qint8 MemberSection::accountType()
{
    const QByteArrayView text = field(Column::AccountType);
    const qint8 type = accountTypeCode(text);
    if (type == unknownAccountType)
        warn([&] { return QStringLiteral("%1 is no account type.").arg(quoted(text)); });
    return type;
}

qint8 MemberSection::accountIsICP()
{
    const QByteArrayView text = field(Column::IsICP);
    if (sameWord(text, "R"))
        return 1;
    if (const auto value = flagValue(text))
        return *value ? -1 : 0;
    warn([&] {
        return QStringLiteral("%1 is neither Y nor N nor R; it is read as N.").arg(quoted(text));
    });
    return 0;
}

qint16 MemberSection::decimalPlaces()
{
    const QByteArrayView text = field(Column::NumDecimalPlaces);
    const WholeNumber number = wholeNumber(text);
    if (!number.isWhole)
        warn([&] {
            return QStringLiteral("%1 is no number of decimal places; it is read as %2.")
                .arg(quoted(text), QString::number(number.value));
        });
    return number.value;
}

} // namespace hfm::offline
