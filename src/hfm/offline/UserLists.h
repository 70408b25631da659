#pragma once

#include "hfm/offline/DimensionKind.h"
#include "hfm/offline/script/Program.h"
#include "hfm/offline/Warnings.h"
#include "hfm/Values.h"

#include <QHash>

#include <array>
#include <memory>
#include <optional>

namespace hfm::offline {

struct Application;
class ListRun;

/// A member list that an application's member list file defines.
struct UserList
{
    ListId id; ///< as the script numbers it, from 1
    QString name;
};

/// The user-defined member lists of an application: what the script of its member list file makes
/// of its members. The script is read, a dimension's lists are named and a list is made when they
/// are asked for first, each of it once.
///
/// A script that fails costs what it was to make: all lists where it cannot be read, a dimension's
/// lists where it does not name them, and a list that it does not make is empty. The reason is a
/// warning.
class UserLists
{
public:
    /// The application must outlive its lists. `limits` are those of each run.
    explicit UserLists(const Application &application, const script::Limits &limits = {});
    ~UserLists();
    UserLists(const UserLists &) = delete;
    UserLists &operator=(const UserLists &) = delete;

    /// A dimension's lists, by ID.
    const std::vector<UserList> &lists(DimensionKind dimension);
    /// The list of that name, in any letter case.
    std::optional<ListId> find(DimensionKind dimension, const QString &name);
    /// The members of a list in the order in which the script adds them; nothing where the
    /// dimension has no such list.
    std::optional<QList<MemberId>> members(DimensionKind dimension, ListId list);

    /// Makes every list of every dimension and returns what was found wrong. Takes the time that
    /// the scripts take; after as many steps as ten runs may have, the rest is left out, with a
    /// warning.
    const Warnings &check();

private:
    friend class ListRun;

    enum class State : quint8 { Unknown, Running, Known, Failed };
    struct List
    {
        State state = State::Unknown;
        QList<MemberId> members = {};
    };
    struct Dimension
    {
        State state = State::Unknown; ///< of the names
        std::vector<UserList> lists;  ///< by ID
        std::vector<List> contents;   ///< parallel to `lists`
        QHash<QString, ListId> ids;   ///< by name in folded case
    };
    /// Something to be made: a dimension's names, or one of its lists by position.
    struct Task
    {
        DimensionKind dimension;
        qint32 list;
        qint64 steps; ///< that are left for it
    };
    static constexpr qint32 namesOnly = -1;

    Dimension &of(DimensionKind dimension) { return mDimensions[size_t(dimension)]; }
    State &stateOf(DimensionKind dimension, qint32 list);
    qint32 position(DimensionKind dimension, ListId list);
    void readScript();
    void make(DimensionKind dimension, qint32 list);
    bool run(Task &task, Task &needed);
    void finish(const Task &task, ListRun &listRun);
    void warn(qint64 line, const QString &text);

    const Application &mApplication;
    script::Limits mLimits;
    Warnings mWarnings;
    bool mIsRead = false;
    qint64 mSteps = 0;                               ///< of all runs
    std::unique_ptr<const script::Program> mProgram; ///< null where it cannot be read
    std::array<Dimension, allDimensionKinds.size()> mDimensions;
};

} // namespace hfm::offline
