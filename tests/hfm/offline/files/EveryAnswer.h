#pragma once

#include "hfm/Session.h"

#include <QStringList>

/// The answers of a session to every operation, as text: of every dimension, member, list, class,
/// user and role.
class EveryAnswer
{
public:
    explicit EveryAnswer(hfm::Session &session) : mSession(session) {}

    QStringList lines()
    {
        const auto metadata = mSession.GetMetadata();
        const auto system = mSession.GetSystemInfo();
        add({system->GetClusterName(), system->GetApplicationName()});
        add({QString::number(system->GetMemberListFile().present)});
        add(metadata->GetLanguages());
        const auto languages = qint16(metadata->GetLanguages().size());
        for (const auto &dimension :
             {metadata->GetScenarioDimension(), metadata->GetYearDimension(),
              metadata->GetPeriodDimension(), metadata->GetViewDimension(),
              metadata->GetEntityDimension(), metadata->GetValueDimension(),
              metadata->GetAccountDimension(), metadata->GetICPDimension(),
              metadata->GetCustom1Dimension(), metadata->GetCustom2Dimension(),
              metadata->GetCustom3Dimension(), metadata->GetCustom4Dimension()}) {
            addDimension(*dimension);
            for (const hfm::MemberId member : dimension->EnumAllMembers())
                addMember(*dimension, member, languages);
        }
        addEntities(*metadata->GetEntityDimension());
        addAccounts(*metadata->GetAccountDimension());
        for (const auto &custom :
             {metadata->GetCustom1Dimension(), metadata->GetCustom2Dimension(),
              metadata->GetCustom3Dimension(), metadata->GetCustom4Dimension()})
            addCustoms(*custom);
        addSecurity(*mSession.GetSecurity());
        return mLines;
    }

private:
    void add(const QStringList &texts) { mLines.append(texts.join(QLatin1Char('|'))); }
    void add(const QString &what, const QList<qint32> &numbers)
    {
        QString line = what;
        for (const qint32 number : numbers)
            line += QStringLiteral(" %1").arg(number);
        mLines.append(line);
    }

    void addDimension(hfm::Dimension &dimension)
    {
        add({dimension.GetDimensionName()});
        add(dimension.EnumAllMemberLabels());
        add(QStringLiteral("all"), dimension.EnumAllMembers());
        add(QStringLiteral("parents"), dimension.EnumHierarchy().parents);
        add(QStringLiteral("members"), dimension.EnumHierarchy().members);
        add(QStringLiteral("auxiliary"), dimension.EnumHierarchyAux().members);
        add(dimension.EnumMemberListNames());
        addBelow(dimension, hfm::rootMember);
        add(QStringLiteral("top"), dimension.EnumChildMembers(hfm::allChildren, hfm::rootMember));
    }

    void addBelow(hfm::Dimension &dimension, hfm::MemberId top)
    {
        for (const QString &name : dimension.EnumMemberListNames()) {
            const hfm::ListId list = dimension.GetMemberListId(name);
            add(QStringLiteral("%1 %2").arg(name).arg(list),
                dimension.EnumMemberListMembers(list, top));
        }
        for (const hfm::Distinct distinct : {hfm::EveryOccurrence, hfm::EachMemberOnce}) {
            add(QStringLiteral("base"), dimension.EnumBaseMembers(top, distinct));
            add(QStringLiteral("below"), dimension.EnumMembersBelow(top, distinct));
        }
    }

    void addMember(hfm::Dimension &dimension, hfm::MemberId member, qint16 languages)
    {
        const QString label = dimension.GetMemberLabel(member);
        QStringList texts = {label, dimension.GetDefaultParentLabel(member)};
        for (qint16 language = 0; language < languages; ++language)
            texts.append(dimension.GetMemberDescription(member, language));
        add(texts);
        add(QStringLiteral("numbers"),
            {dimension.GetMemberId(label), dimension.GetChildCount(member),
             qint32(dimension.GetHasChildren(member)), dimension.GetDefaultParentGeneration(member),
             dimension.GetGenerationsBelow(member)});
        if (!dimension.GetHasChildren(member))
            return;
        add(QStringLiteral("children"), dimension.EnumChildMembers(hfm::allChildren, member));
        addBelow(dimension, member);
    }

    void addEntities(hfm::Dimension &dimension)
    {
        const auto view = dimension.entityAttributes();
        for (const hfm::MemberId id : dimension.EnumAllMembers()) {
            add({view->GetEntityUserDefined1(id), view->GetEntityUserDefined2(id),
                 view->GetEntityUserDefined3(id)});
            add(QStringLiteral("entity"),
                {view->GetEntityCurrencyId(id), view->GetEntitySecurityClassId(id),
                 view->GetEntityAllowAdjs(id), view->GetEntityIsICP(id),
                 view->GetEntityAllowChildAdjs(id)});
        }
    }

    void addAccounts(hfm::Dimension &dimension)
    {
        const auto view = dimension.accountAttributes();
        for (const hfm::MemberId id : dimension.EnumAllMembers()) {
            add({view->GetAccountUserDefined1(id), view->GetAccountUserDefined2(id),
                 view->GetAccountUserDefined3(id)});
            add(QStringLiteral("account"),
                {view->GetAccountType(id), view->GetAccountIsCalculated(id),
                 view->GetAccountIsLID(id), view->GetAccountIsConsolidated(id),
                 view->GetAccountTopCustom1(id), view->GetAccountTopCustom2(id),
                 view->GetAccountTopCustom3(id), view->GetAccountTopCustom4(id),
                 view->GetAccountDecimalPlaces(id), view->GetAccountCustom1AggEnabled(id),
                 view->GetAccountCustom2AggEnabled(id), view->GetAccountCustom3AggEnabled(id),
                 view->GetAccountCustom4AggEnabled(id), view->GetAccountSecurityClassId(id),
                 view->GetAccountIsICP(id)});
        }
    }

    void addCustoms(hfm::Dimension &dimension)
    {
        const auto view = dimension.customAttributes();
        for (const hfm::MemberId id : dimension.EnumAllMembers()) {
            add({view->GetCustomUserDefined1(id), view->GetCustomUserDefined2(id),
                 view->GetCustomUserDefined3(id)});
            add(QStringLiteral("custom"), {view->GetCustomSecurityClassId(id)});
        }
    }

    void addSecurity(hfm::Security &security)
    {
        const hfm::SecurityClasses classes = security.EnumSecurityClasses();
        QStringList users;
        for (qsizetype i = 0; i < classes.ids.size(); ++i) {
            users = security.EnumClassAccess(classes.ids[i]).names;
            add({classes.names[i], security.GetSecurityClassName(classes.ids[i])});
            add(users);
            add(QStringLiteral("access"), security.EnumClassAccess(classes.ids[i]).codes);
            add(QStringLiteral("class"), {security.GetSecurityClassId(classes.names[i])});
        }
        for (const QString &user : users) {
            const hfm::UserId id = security.GetUserId(user);
            add(QStringLiteral("user"), security.EnumUserClassAccess(id).codes);
            add(security.EnumUserClassAccess(id).names);
            add(security.EnumUserRoles(id).flags);
            for (const QString &role : security.EnumUserRoles(id).names)
                add(security.EnumRoleUsers(security.GetRoleId(role)).flags);
        }
    }

    hfm::Session &mSession;
    QStringList mLines;
};
