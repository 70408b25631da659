#include "hfm/offline/UserLists.h"

#include "hfm/offline/ListRun.h"
#include "hfm/offline/script/Evaluator.h"
#include "hfm/offline/ScriptText.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>

namespace hfm::offline {

namespace {

const QString namesSub = QStringLiteral("EnumMemberLists");
const QString membersSub = QStringLiteral("EnumMembersInList");

QString withColumn(const script::ScriptError &error)
{
    return QStringLiteral("%1 (column %2)")
        .arg(error.text(), QString::number(error.position().column));
}

} // namespace

UserLists::UserLists(const Application &application, const script::Limits &limits)
    : mApplication(application), mLimits(limits)
{
    mWarnings.setFileName(SourceFile::MemberLists,
                          QFileInfo(application.files.memberLists).fileName());
}

UserLists::~UserLists() = default;

void UserLists::warn(qint64 line, const QString &text)
{
    mWarnings.add(Place(SourceFile::MemberLists, line), [&] { return text; });
}

void UserLists::readScript()
{
    if (std::exchange(mIsRead, true) || mApplication.memberListFile.present == 0)
        return;
    try {
        mProgram = script::readProgram(scriptText(mApplication.memberListFile.content),
                                       {QStringLiteral("HS")});
    } catch (const script::ScriptError &error) {
        return warn(error.position().line,
                    QStringLiteral("%1. The file's lists are left out.").arg(withColumn(error)));
    }
    for (const QString &sub : {namesSub, membersSub}) {
        if (mProgram->findProcedure(sub) < 0)
            warn(0, QStringLiteral("There is no Sub %1.").arg(sub));
    }
}

UserLists::State &UserLists::stateOf(DimensionKind dimension, qint32 list)
{
    Dimension &names = of(dimension);
    return list == namesOnly ? names.state : names.contents[size_t(list)].state;
}

/// The list's position among those of its dimension, whose names are known; -1 for none.
qint32 UserLists::position(DimensionKind dimension, ListId list)
{
    const auto &lists = of(dimension).lists;
    const auto found =
        std::lower_bound(lists.begin(), lists.end(), list,
                         [](const UserList &known, ListId id) { return known.id < id; });
    return found != lists.end() && found->id == list ? qint32(found - lists.begin()) : -1;
}

const std::vector<UserList> &UserLists::lists(DimensionKind dimension)
{
    make(dimension, namesOnly);
    return of(dimension).lists;
}

std::optional<ListId> UserLists::find(DimensionKind dimension, const QString &name)
{
    make(dimension, namesOnly);
    const auto &ids = of(dimension).ids;
    const auto found = ids.constFind(name.toCaseFolded());
    return found == ids.constEnd() ? std::nullopt : std::optional(*found);
}

std::optional<QList<MemberId>> UserLists::members(DimensionKind dimension, ListId list)
{
    make(dimension, namesOnly);
    const qint32 at = position(dimension, list);
    if (at < 0)
        return std::nullopt;
    make(dimension, at);
    return of(dimension).contents[size_t(at)].members;
}

const Warnings &UserLists::check()
{
    const qint64 most = mSteps + 10 * mLimits.steps;
    for (const DimensionKind kind : allDimensionKinds)
        for (const UserList &list : lists(kind)) {
            members(kind, list.id);
            if (mSteps > most) {
                warn(0, QStringLiteral("The lists take too long to try all of them."));
                return mWarnings;
            }
        }
    return mWarnings;
}

/// Makes a dimension's names or a list. What a script needs of other lists is made first and the
/// script begun anew then, so that lists that are made of each other need no recursion.
void UserLists::make(DimensionKind dimension, qint32 list)
{
    State &state = stateOf(dimension, list);
    if (state == State::Known || state == State::Failed || state == State::Running)
        return;
    readScript();
    std::vector<Task> tasks = {{dimension, list, mLimits.steps}};
    state = State::Running;
    while (!tasks.empty()) {
        Task needed = {};
        if (run(tasks.back(), needed)) {
            tasks.pop_back();
        } else {
            stateOf(needed.dimension, needed.list) = State::Running;
            tasks.push_back(needed);
        }
    }
}

/// Runs the script for a task; false where `needed` must be done before it.
bool UserLists::run(Task &task, Task &needed)
{
    const bool isForNames = task.list == namesOnly;
    const qint32 procedure =
        mProgram ? mProgram->findProcedure(isForNames ? namesSub : membersSub) : -1;
    State &state = stateOf(task.dimension, task.list);
    if (procedure < 0) {
        state = State::Failed;
        return true;
    }
    const ListId id = isForNames ? 0 : of(task.dimension).lists[size_t(task.list)].id;
    ListRun listRun(mApplication, *this, task.dimension, id);
    script::Limits limits = mLimits;
    limits.steps = task.steps;
    script::RunState runState{script::Bounds(limits), listRun, mApplication.openedAt};
    const auto countSteps = qScopeGuard([&] {
        const qint64 left = std::max<qint64>(0, runState.bounds.stepsLeft());
        mSteps += task.steps - left;
        task.steps = left;
    });
    try {
        script::runSub(*mProgram, procedure, runState);
        finish(task, listRun);
        state = State::Known;
    } catch (const ListNeeded &list) {
        needed = {list.dimension, list.list, mLimits.steps};
        return false;
    } catch (const script::ScriptError &error) {
        const QString what =
            isForNames ? QStringLiteral("The member lists of %1 are left out")
                             .arg(dimensionName(task.dimension))
                       : QStringLiteral("The list %1 of %2 is empty")
                             .arg(quoted(of(task.dimension).lists[size_t(task.list)].name.toUtf8()),
                                  dimensionName(task.dimension));
        warn(error.position().line, QStringLiteral("%1: %2").arg(what, withColumn(error)));
        state = State::Failed;
    }
    return true;
}

/// Takes over what a run made.
void UserLists::finish(const Task &task, ListRun &listRun)
{
    for (const auto &[line, text] : listRun.warnings)
        warn(line, text);
    Dimension &dimension = of(task.dimension);
    if (task.list != namesOnly) {
        listRun.members.squeeze();
        dimension.contents[size_t(task.list)].members = std::move(listRun.members);
        return;
    }
    const SystemLists &systemLists = mApplication.dimension(task.dimension).lists;
    for (const ListRun::Named &named : listRun.names) {
        const QString folded = named.name.toCaseFolded();
        if (dimension.ids.contains(folded) || systemLists.find(named.name)) {
            warn(named.line, QStringLiteral("%1 has a list %2 already; this one is left out.")
                                 .arg(dimensionName(task.dimension), quoted(named.name.toUtf8())));
            continue;
        }
        dimension.ids.insert(folded, named.id);
        dimension.lists.push_back({named.id, named.name});
    }
    dimension.contents.resize(dimension.lists.size());
}

} // namespace hfm::offline
