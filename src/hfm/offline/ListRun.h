#pragma once

#include "hfm/offline/Application.h"
#include "hfm/offline/HsMembers.h"
#include "hfm/offline/script/Host.h"
#include "hfm/offline/UserLists.h"

namespace hfm::offline {

/// Raised where a script needs a list, or the names of a dimension's lists, that must be made
/// first.
struct ListNeeded
{
    DimensionKind dimension;
    qint32 list; ///< UserLists::namesOnly for the names
};

/// One run of an application's member list script: what the script sees of the application, as the
/// object HS, and what it makes.
class ListRun final : public script::Host
{
public:
    /// A run for a dimension's lists (`list` 0), or for the members of the list of that ID.
    ListRun(const Application &application, UserLists &lists, DimensionKind dimension, ListId list);
    ~ListRun() override;

    script::HostObject *object(qint32 position) override;
    qint32 memberNumber(const QString &name) const override { return hsMemberNumber(name); }
    script::Text labelText(script::HostLabel label, script::RunState &run) override;

    // What the objects of HS work with.

    const Application &application() const { return mApplication; }
    const StoredDimension &stored(DimensionKind kind) const { return mApplication.dimension(kind); }
    DimensionKind dimension() const { return mDimension; }
    ListId listId() const { return mList; }
    bool isForNames() const { return mList == 0; }
    script::HostObject *dimensionObject(DimensionKind kind);
    script::HostObject *settingsObject() { return mSettings.get(); }
    /// The members of a user-defined list; nothing where there is none of that name. Fails with
    /// ListNeeded where the list is not made yet.
    const QList<MemberId> *userList(DimensionKind kind, const QString &name);
    /// The text of a stored attribute. Texts that come again and again are made once.
    script::Value attribute(TextRef text);
    script::Value currencyOf(qint32 entityCurrency);
    script::Value className(ClassId securityClass);
    static script::Value label(DimensionKind kind, MemberId member)
    {
        return script::Value::label({qint32(kind), member});
    }
    /// The member that a value names, or -1.
    MemberId findMember(DimensionKind kind, const script::Value &value, script::RunState &run);
    /// The same; fails where there is none.
    MemberId member(DimensionKind kind, const script::Value &value, script::RunState &run);

    /// Whether an argument is given at all: HFM's scripts leave one out as the empty text.
    static bool isGiven(const script::Value &value, script::RunState &run);

    // What the script makes.

    void setNames(const script::Value &names, script::RunState &run);
    void add(MemberId member, script::RunState &run);
    void warn(const QString &text, const script::RunState &run);

    struct Named
    {
        ListId id;
        QString name;
        qint64 line;
    };
    std::vector<Named> names;
    QList<MemberId> members;
    std::vector<std::pair<qint64, QString>> warnings; ///< with their lines

private:
    struct KeptText
    {
        TextRef ref = 0;
        script::Value text;
    };

    void requireMade(DimensionKind kind, qint32 list, const QString &what);

    const Application &mApplication;
    UserLists &mLists;
    DimensionKind mDimension;
    ListId mList;
    std::unique_ptr<script::HostObject> mRoot;
    std::unique_ptr<script::HostObject> mSettings;
    std::array<std::unique_ptr<script::HostObject>, allDimensionKinds.size()> mDimensions;
    std::array<KeptText, 256> mTexts;
    std::vector<script::Value> mCurrencies; ///< by entity currency
    std::vector<script::Value> mClasses;    ///< as members' records count them
};

/// An error in the words of the client.
script::Fault hsFault(const QString &text);
/// Fails with UnknownMember: the object knows no such member.
[[noreturn]] void failUnknownMember(const script::HostObject &object, HsMember member);
/// Fails unless there are so many arguments.
void requireArguments(script::Arguments arguments, size_t least, size_t most, HsMember member);

} // namespace hfm::offline
