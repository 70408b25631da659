#pragma once

#include "hfm/offline/DescriptionReader.h"
#include "hfm/offline/Layout.h"
#include "hfm/offline/Section.h"

namespace hfm::offline {

/// !MEMBERS= of one dimension.
class MemberSection final : public Section
{
public:
    MemberSection(ApplicationDraft &draft, DimensionKind kind, char delimiter);

    void readColumns(const QList<QByteArrayView> &columns) override;
    void readRecord(QByteArrayView line, Place place) override;

private:
    void findParts();
    void readDefaultParent(MemberId id);
    void readAttributes(MemberId id);
    EntityRecord entity();
    AccountRecord account();
    CustomRecord custom();

    QByteArrayView field(Column column) const;
    UserDefined userDefined();
    ClassId securityClass();
    bool flag(Column column);
    qint8 accountType();
    qint8 accountIsICP();
    qint16 decimalPlaces();
    template <typename Text>
    void warn(Text text)
    {
        mDraft.warnings.add(mPlace, text);
    }

    ApplicationDraft &mDraft;
    DimensionDraft &mDimension;
    char mDelimiter;
    Layout mLayout;
    DescriptionReader mDescriptions;
    UserDefined mLastUserDefined = {}; ///< most often the next record has the same again

    // The record that is being read.
    Fields mFields;
    Place mPlace;
    qsizetype mPositional = 0;     ///< how many fields stand before the named ones
    qsizetype mDefaultParent = -1; ///< index of the DefaultParent field
};

} // namespace hfm::offline
