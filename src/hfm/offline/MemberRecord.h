#pragma once

#include "hfm/offline/Layout.h"
#include "hfm/offline/Place.h"
#include "hfm/offline/Syntax.h"

namespace hfm::offline {

/// One record of a member section, taken apart; valid for as long as its line.
class MemberRecord
{
public:
    void read(QByteArrayView line, Place place, const Layout &layout, char delimiter);

    Place place() const { return mPlace; }
    QByteArrayView label() const { return field(Column::Label); }
    /// Empty where the record has no such field.
    QByteArrayView field(Column column) const
    {
        const qsizetype index = mLayout->index(column);
        return index >= 0 && index < mPositional ? mFields.at(index) : QByteArrayView();
    }
    const Fields &fields() const { return mFields; }
    /// How many fields stand before the DefaultParent field or the first description.
    qsizetype positionalFields() const { return mPositional; }
    bool hasTooManyFields() const { return mPositional > mLayout->count() || mFields.isCut(); }
    bool hasDefaultParent() const { return mDefaultParent >= 0; }
    QByteArrayView defaultParent() const;
    /// The index of the first field that is a description.
    qsizetype firstDescription() const;

private:
    void findParts();

    const Layout *mLayout = nullptr;
    char mDelimiter = ';';
    Place mPlace;
    Fields mFields;
    qsizetype mPositional = 0;
    qsizetype mDefaultParent = -1; ///< index of the DefaultParent field
};

} // namespace hfm::offline
