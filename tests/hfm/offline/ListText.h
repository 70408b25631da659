#pragma once

#include "ReadText.h"

#include "hfm/offline/OfflineDimension.h"
#include "hfm/offline/UserLists.h"

/// The application of the tests of member lists.
inline constexpr char applicationWithLists[] = R"(!FILE_FORMAT=11.12
!CUSTOM_ORDER=Movement;Product
!APPLICATION_SETTINGS
DefaultCurrency=EUR
!CURRENCIES
EUR;0
USD;0
!MEMBERS=Entity
[None];;N;N;N;;;;;;;DefaultParent=#root
GROUP;EUR;Y;N;N;SC_GRP;Holding;;x y;HOLDCO;;DefaultParent=#root
EAST;EUR;N;N;N;;;;;;;DefaultParent=GROUP
E1;USD;N;Y;Y;SC_US;one;US;;;;DefaultParent=EAST
E2;EUR;N;Y;N;;;;;;;DefaultParent=WEST
WEST;EUR;N;N;N;;;;;;;DefaultParent=GROUP
E3;;N;N;N;;;;;;;DefaultParent=WEST
HOLDCO;EUR;N;N;N;;;;;;;DefaultParent=GROUP
SPARE;EUR;N;N;N;;;;;;;DefaultParent=#root
!HIERARCHIES=Entity
;[None]
;GROUP
GROUP;EAST
EAST;E1
EAST;E2
GROUP;WEST
WEST;E2
WEST;E3
GROUP;HOLDCO
!MEMBERS=Scenario
ACTUAL;M;YTD;N;N;Y;s1;s2;s3;Y;SC_SCN;10;Y;N;;;DefaultParent=#root
BUDGET;M;YTD;N;N;Y;;;;Y;;10;Y;N;;;DefaultParent=#root
!HIERARCHIES=Scenario
;ACTUAL
;BUDGET
!MEMBERS=Account
PL;GROUPLABEL;N;N;N;;;;0;N;Y;Y;;;;;;;N;;;DefaultParent=#root
SALES;REVENUE;N;Y;R;;CLO;[None];2;Y;Y;N;one;two;three;;SC_PL;;N;;;DefaultParent=PL
COST;EXPENSE;Y;N;N;;;;0;N;N;N;;;;;;;N;;;DefaultParent=PL
!HIERARCHIES=Account
;PL
PL;SALES
PL;COST
!MEMBERS=Movement
CLO;N;N;N;c1;;c3;SC_PL;1;DefaultParent=#root
OPE;N;N;N;;;;;1;DefaultParent=CLO
!HIERARCHIES=Movement
;CLO;1
CLO;OPE;1
!MEMBERS=ICP
E1;SC_ICP
)";

/// The lists that a script makes for that application.
class ListText
{
public:
    explicit ListText(const QByteArray &script)
        : mApplication(readTexts({applicationWithLists, {}, {}, script}))
    {
    }

    /// A script of these lists of one dimension, numbered from 1; `cases` are the cases of Select
    /// Case HS.MemberListID.
    static ListText of(const QByteArray &dimension, const QList<QByteArray> &names,
                       const QByteArray &cases)
    {
        QByteArray script = "Sub EnumMemberLists()\nDim lists(" + QByteArray::number(names.size()) +
                            ")\nIf HS.Dimension = \"" + dimension + "\" Then\n";
        for (qsizetype i = 0; i < names.size(); ++i)
            script += "lists(" + QByteArray::number(i + 1) + ") = \"" + names[i] + "\"\n";
        return ListText(script +
                        "HS.SetMemberLists lists\nEnd If\nEnd Sub\n"
                        "Sub EnumMembersInList()\nSelect Case HS.MemberListID\n" +
                        cases + "\nEnd Select\nEnd Sub\n");
    }
    /// One list of accounts that is made by these statements, on the lines from 11.
    static ListText ofAccounts(const QByteArray &statements)
    {
        return of("Account", {"List"}, "Case 1\n" + statements);
    }

    hfm::offline::UserLists &lists() { return *mApplication->userLists; }
    const hfm::offline::Application &application() const { return *mApplication; }
    std::shared_ptr<hfm::Dimension> dimension(hfm::offline::DimensionKind kind)
    {
        return std::make_shared<hfm::offline::OfflineDimension>(mApplication, kind);
    }
    /// The user-defined lists of a dimension, as "ID NAME".
    QStringList names(hfm::offline::DimensionKind kind)
    {
        const auto of = dimension(kind);
        QStringList found;
        for (const QString &name : of->EnumMemberListNames()) {
            const hfm::ListId id = of->GetMemberListId(name);
            if (id >= 0)
                found.append(QStringLiteral("%1 %2").arg(QString::number(id), name));
        }
        return found;
    }
    /// The labels of a list's members, with blanks between them.
    QString members(hfm::offline::DimensionKind kind, const QString &list)
    {
        const auto of = dimension(kind);
        QStringList labels;
        const auto ids = of->EnumMemberListMembers(of->GetMemberListId(list), hfm::rootMember);
        for (const hfm::MemberId id : ids)
            labels.append(of->GetMemberLabel(id));
        return labels.join(u' ');
    }
    QString accounts(const QString &list = QStringLiteral("List"))
    {
        return members(hfm::offline::DimensionKind::Account, list);
    }
    /// What was found wrong with all lists, as "LINE: TEXT".
    QStringList warnings()
    {
        QStringList lines;
        const auto found = lists().check().list();
        for (const hfm::offline::Warning &warning : found)
            lines.append(QStringLiteral("%1: %2").arg(QString::number(warning.line), warning.text));
        return lines;
    }

private:
    std::shared_ptr<const hfm::offline::Application> mApplication;
};
