#include "hfm/offline/MemberSection.h"

namespace hfm::offline {

MemberSection::MemberSection(ApplicationDraft &draft, DimensionKind kind, char delimiter)
    : mDraft(draft), mDimension(draft.dimension(kind)), mDelimiter(delimiter),
      mCustomNames(draft.customNames), mLayout(Layout::documented(kind, draft.customNames.size())),
      mAttributes(draft), mDescriptions(draft)
{
}

void MemberSection::readColumns(const QList<QByteArrayView> &columns)
{
    finish();
    mLayout = Layout::named(columns, mCustomNames);
}

void MemberSection::readRecord(QByteArrayView line, Place place)
{
    Pending &pending = mPending[mPendingCount];
    pending.record.read(line, place, mLayout, mDelimiter);
    const QByteArrayView label = pending.record.label();
    if (label.isEmpty()) {
        mDraft.warnings.add(
            place, [] { return QStringLiteral("The record has no label; it is left out."); });
        return;
    }
    pending.label = mDimension.labels().key(label);
    mDescriptions.look(pending.record.fields(), pending.record.firstDescription(), place,
                       pending.descriptions);
    if (++mPendingCount == mPending.size())
        finish();
}

void MemberSection::finish()
{
    for (size_t i = 0; i < mPendingCount; ++i)
        store(mPending[i]);
    mPendingCount = 0;
}

void MemberSection::store(const Pending &pending)
{
    const MemberRecord &record = pending.record;
    const MemberId id = mDimension.addRecord(pending.label, record.place());
    if (id < 0) {
        mDraft.warnings.add(record.place(), [&] {
            return QStringLiteral("%1 has a record already; this one is left out.")
                .arg(quoted(record.label()));
        });
        return;
    }
    if (record.hasTooManyFields())
        mDraft.warnings.add(record.place(), [&] {
            return QStringLiteral("The record of %1 has %2 fields where %3 are known; the last "
                                  "ones are left out.")
                .arg(quoted(record.label()), QString::number(record.positionalFields()),
                     QString::number(mLayout.count()));
        });
    storeAttributes(id, record);
    if (record.hasDefaultParent())
        mDimension.setDefaultParent(id, record.defaultParent(), *mDraft.arena);
    mDimension.setDescriptions(id, mDraft.arena->add(pending.descriptions.together()));
}

void MemberSection::storeAttributes(MemberId id, const MemberRecord &record)
{
    const DimensionKind kind = mDimension.kind();
    if (kind == DimensionKind::Entity)
        storeEntity(id, record);
    else if (kind == DimensionKind::Account)
        recordOf(mDimension.accounts, id) = mAttributes.account(record);
    else if (isCustom(kind) || kind == DimensionKind::Scenario || kind == DimensionKind::ICP)
        recordOf(mDimension.customs, id) = mAttributes.custom(record);
}

void MemberSection::storeEntity(MemberId id, const MemberRecord &record)
{
    recordOf(mDimension.entities, id) = mAttributes.entity(record);
    const TextRef holding = mAttributes.holding(record);
    if (holding != 0)
        mDimension.holdings.push_back({id, holding});
}

} // namespace hfm::offline
