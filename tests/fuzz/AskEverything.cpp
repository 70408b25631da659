#include "AskEverything.h"

#include "runtime/RuntimeError.h"

#include <algorithm>
#include <cstdlib>

using hfm::Dimension;
using hfm::MemberId;

namespace {

constexpr qsizetype membersAsked = 50;
constexpr qsizetype namesAsked = 10;

void promise(bool kept)
{
    if (!kept)
        std::abort();
}

void askMember(Dimension &dimension, MemberId member, int languages)
{
    const QString label = dimension.GetMemberLabel(member);
    promise(dimension.GetMemberLabel(dimension.GetMemberId(label))
                .compare(label, Qt::CaseInsensitive) == 0);
    for (int language = 0; language < languages; ++language)
        dimension.GetMemberDescription(member, qint16(language));
    const QList<MemberId> children = dimension.EnumChildMembers(hfm::allChildren, member);
    promise(children.size() == dimension.GetChildCount(member));
    promise(children.isEmpty() != dimension.GetHasChildren(member));
    promise((dimension.GetGenerationsBelow(member) == 0) == children.isEmpty());
    dimension.GetDefaultParentLabel(member);
    promise(dimension.GetDefaultParentGeneration(member) >= 0);
}

void askLists(Dimension &dimension, MemberId top)
{
    const QList<QString> names = dimension.EnumMemberListNames();
    for (const QString &name : names)
        dimension.EnumMemberListMembers(dimension.GetMemberListId(name), top);
}

void askHierarchy(Dimension &dimension, MemberId top)
{
    try {
        const qsizetype all = dimension.EnumMembersBelow(top, hfm::EveryOccurrence).size();
        const qsizetype once = dimension.EnumMembersBelow(top, hfm::EachMemberOnce).size();
        promise(once <= all);
        promise(dimension.EnumBaseMembers(top, hfm::EachMemberOnce).size() <= once);
        if (top == hfm::rootMember)
            promise(dimension.EnumHierarchy().members.size() == all);
    } catch (const RuntimeError &error) {
        promise(error.number() == OutOfMemory); // members shared again and again
    }
}

void askDimension(Dimension &dimension, int languages)
{
    dimension.GetDimensionName();
    const QList<MemberId> members = dimension.EnumAllMembers();
    promise(dimension.EnumAllMemberLabels().size() == members.size());
    askLists(dimension, hfm::rootMember);
    askHierarchy(dimension, hfm::rootMember);
    for (qsizetype i = 0; i < std::min(members.size(), membersAsked); ++i) {
        askMember(dimension, members[i], languages);
        if (i < 5) {
            askLists(dimension, members[i]);
            askHierarchy(dimension, members[i]);
        }
    }
}

template <typename Ask>
void askAttributes(Dimension &dimension, Ask ask)
{
    const QList<MemberId> members = dimension.EnumAllMembers();
    for (qsizetype i = 0; i < std::min(members.size(), membersAsked); ++i)
        ask(members[i]);
}

void askEntities(hfm::Metadata &metadata)
{
    const auto entities = metadata.GetEntityDimension();
    const auto view = entities->entityAttributes();
    askAttributes(*entities, [&](MemberId id) {
        metadata.GetValueDimension()->GetMemberLabel(view->GetEntityCurrencyId(id));
        view->GetEntitySecurityClassId(id);
        view->GetEntityUserDefined1(id);
        view->GetEntityUserDefined2(id);
        view->GetEntityUserDefined3(id);
        view->GetEntityAllowAdjs(id);
        view->GetEntityAllowChildAdjs(id);
        view->GetEntityIsICP(id);
    });
}

void askAccounts(hfm::Metadata &metadata)
{
    const auto accounts = metadata.GetAccountDimension();
    const auto view = accounts->accountAttributes();
    const auto askTop = [](const std::shared_ptr<Dimension> &custom, MemberId top) {
        if (top != hfm::rootMember)
            custom->GetMemberLabel(top);
    };
    askAttributes(*accounts, [&](MemberId id) {
        askTop(metadata.GetCustom1Dimension(), view->GetAccountTopCustom1(id));
        askTop(metadata.GetCustom2Dimension(), view->GetAccountTopCustom2(id));
        askTop(metadata.GetCustom3Dimension(), view->GetAccountTopCustom3(id));
        askTop(metadata.GetCustom4Dimension(), view->GetAccountTopCustom4(id));
        view->GetAccountType(id);
        view->GetAccountDecimalPlaces(id);
        view->GetAccountUserDefined1(id);
        view->GetAccountUserDefined3(id);
        view->GetAccountSecurityClassId(id);
        view->GetAccountIsICP(id);
    });
}

void askCustom(const std::shared_ptr<Dimension> &custom)
{
    const auto view = custom->customAttributes();
    askAttributes(*custom, [&](MemberId id) {
        view->GetCustomUserDefined1(id);
        view->GetCustomUserDefined2(id);
        view->GetCustomUserDefined3(id);
        view->GetCustomSecurityClassId(id);
    });
}

void askUsers(hfm::Security &security, const QList<QString> &users)
{
    for (qsizetype i = 0; i < std::min(users.size(), namesAsked); ++i) {
        const hfm::UserId id = security.GetUserId(users[i]);
        const hfm::FlaggedNames roles = security.EnumUserRoles(id);
        promise(roles.names.size() == roles.flags.size());
        for (qsizetype k = 0; k < std::min(roles.names.size(), namesAsked); ++k) {
            const hfm::FlaggedNames everyone =
                security.EnumRoleUsers(security.GetRoleId(roles.names[k]));
            promise(everyone.names == users);
            promise(everyone.flags[id] == roles.flags[k]);
        }
    }
}

} // namespace

void askSecurity(hfm::Security &security)
{
    const hfm::SecurityClasses classes = security.EnumSecurityClasses();
    promise(classes.ids.size() == classes.names.size());
    for (qsizetype i = 0; i < std::min(classes.ids.size(), namesAsked); ++i) {
        const hfm::ClassId id = classes.ids[i];
        promise(security.GetSecurityClassName(id) == classes.names[i]);
        promise(security.GetSecurityClassId(classes.names[i]) == id);
        const hfm::AccessList access = security.EnumClassAccess(id);
        promise(access.names.size() == access.codes.size());
        for (qsizetype k = 0; k < std::min(access.names.size(), namesAsked); ++k) {
            const hfm::AccessList ofUser =
                security.EnumUserClassAccess(security.GetUserId(access.names[k]));
            promise(ofUser.names == classes.names);
            promise(ofUser.codes[i] == access.codes[k]);
        }
        if (i == 0)
            askUsers(security, access.names);
    }
}

void askEverything(hfm::Session &session)
{
    askSecurity(*session.GetSecurity());
    const auto metadata = session.GetMetadata();
    const int languages = int(std::min<qsizetype>(metadata->GetLanguages().size(), 3));
    for (const auto &dimension : {metadata->GetScenarioDimension(), metadata->GetYearDimension(),
                                  metadata->GetPeriodDimension(), metadata->GetViewDimension(),
                                  metadata->GetEntityDimension(), metadata->GetValueDimension(),
                                  metadata->GetAccountDimension(), metadata->GetICPDimension(),
                                  metadata->GetCustom1Dimension(), metadata->GetCustom2Dimension(),
                                  metadata->GetCustom3Dimension(), metadata->GetCustom4Dimension()})
        askDimension(*dimension, languages);
    askEntities(*metadata);
    askAccounts(*metadata);
    for (const auto &custom : {metadata->GetCustom1Dimension(), metadata->GetCustom2Dimension(),
                               metadata->GetCustom3Dimension(), metadata->GetCustom4Dimension()})
        askCustom(custom);
}
