#pragma once

#include "support/FakeMembers.h"

#include <QStringList>

#include <optional>

/// The member lists of a fake dimension: at first the system lists that follow from a hierarchy.
class FakeLists
{
public:
    FakeLists();

    /// Leaves no list, the system lists included.
    void clear();
    /// A system list of these members, with an ID below those of the others.
    void addSystemList(const QString &name, const QList<hfm::MemberId> &members);
    /// A user-defined list; IDs are 1, 2, 3, ... in the order of adding.
    void addUserList(const QString &name, const QList<hfm::MemberId> &members);

    QStringList names() const;
    /// The list of that name, in any letter case.
    std::optional<hfm::ListId> find(const QString &name) const;
    /// The members of a list below `top`; nothing where there is no such list.
    std::optional<QList<hfm::MemberId>> members(hfm::ListId list, const FakeMembers &all,
                                                hfm::MemberId top) const;

private:
    enum class Rule { Below, Above, Base, Children, Parents, Given };
    struct List
    {
        QString name;
        hfm::ListId id;
        Rule rule;
        QList<hfm::MemberId> members; ///< where the rule is Given
    };

    static QList<hfm::MemberId> read(const List &list, const FakeMembers &all, hfm::MemberId top);

    QList<List> mSystemLists;
    QList<List> mUserLists;
};
