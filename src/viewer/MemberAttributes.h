#pragma once

#include "shell/modGlobal.h"
#include "viewer/EntityFilters.h"

/// Puts a member's attributes into words: items of name, '=' and value, joined by ", ".
///
/// Everything is read from HFM each time. Every routine fails as the HFM operations do, and with
/// RuntimeError ObjectVariableNotSet where no application is open.
class MemberAttributes
{
public:
    /// `expanded` adds items for accounts and entities. `global` outlives this object.
    MemberAttributes(modGlobal &global, bool expanded, EntityFilter filter)
        : mGlobal(global), mExpanded(expanded), mFilter(std::move(filter))
    {
    }

    /// The attributes of a member of the dimension that gDimensionName names; empty where that is
    /// not Account, Entity or a custom dimension, and for an entity that the filter leaves out.
    QString GetMemberAttributes(hfm::MemberId member);

    /// Sets gDimension to each custom dimension in turn, for the labels of the top members, and at
    /// last to the Account dimension. A failure in between leaves it where it is.
    QString GetAccountAttributes(hfm::MemberId account);
    /// Empty for an entity that the filter leaves out.
    QString GetEntityAttributes(hfm::MemberId entity);
    /// Of a member of the custom dimension that gDimensionName names.
    QString GetCustomAttributes(hfm::MemberId member);

private:
    hfm::Metadata &metadata() const;
    std::shared_ptr<hfm::Dimension> customDimension(int number) const;
    QString topMemberLabel(int number, hfm::MemberId topMember);
    QString className(hfm::ClassId securityClass);

    modGlobal &mGlobal;
    bool mExpanded;
    EntityFilter mFilter;
};
