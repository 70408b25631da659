#include "viewer/MemberTexts.h"

#include "runtime/Required.h"

#include <QStringBuilder>

using namespace Qt::Literals::StringLiterals;

QString MemberTexts::GetMemberNodeText(hfm::MemberId member)
{
    hfm::Dimension &dimension = required(mGlobal.gDimension);
    const QString label = dimension.GetMemberLabel(member);
    const QString description = dimension.GetMemberDescription(member, mGlobal.gLanguageIndex);
    // This may put another object into gDimension.
    const QString attributes = mAttributes.GetMemberAttributes(member);
    if (attributes.isEmpty())
        return {};
    if (!mShowAttributes)
        return label % " - "_L1 % description;
    return label % " - "_L1 % description % " ("_L1 % attributes % u')';
}
