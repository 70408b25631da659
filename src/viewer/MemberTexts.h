#pragma once

#include "viewer/MemberAttributes.h"

/// What the viewer's options say of the node texts.
struct MemberTextOptions
{
    bool showAttributes = true;
    bool expandedAttributes = false;
    EntityFilter filter = {};
};

/// Makes the texts of the current dimension's members, read from HFM each time.
class MemberTexts
{
public:
    /// `global` outlives this object.
    MemberTexts(modGlobal &global, const MemberTextOptions &options)
        : mGlobal(global), mShowAttributes(options.showAttributes),
          mAttributes(global, options.expandedAttributes, options.filter)
    {
    }

    /// "<label> - <description>" or "<label> - <description> (<attributes>)". Empty where the
    /// member has no attributes at all, whether they are shown or not: an entity that the filter
    /// leaves out, or any member of a dimension that cannot be viewed.
    /// Fails as the HFM operations do, with RuntimeError ObjectVariableNotSet without a dimension.
    QString GetMemberNodeText(hfm::MemberId member);

private:
    modGlobal &mGlobal;
    bool mShowAttributes;
    MemberAttributes mAttributes;
};
