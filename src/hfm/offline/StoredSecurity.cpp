#include "hfm/offline/StoredSecurity.h"

#include "hfm/offline/ApplicationDraft.h"

namespace hfm::offline {

namespace {

/// "name@directory" as a client lists it: "directory\name". A name may hold an '@' itself. What
/// lacks the one or the other stays as it is.
QByteArray listedName(QByteArrayView identity)
{
    const qsizetype at = identity.lastIndexOf('@');
    if (at <= 0 || at == identity.size() - 1)
        return identity.toByteArray();
    return identity.sliced(at + 1).toByteArray() + '\\' + identity.first(at).toByteArray();
}

/// Brings together what a security file says.
class SecurityFinisher
{
public:
    SecurityFinisher(ApplicationDraft &draft, StoredSecurity &stored)
        : mDraft(draft), mStored(stored)
    {
    }

    void finish(SecurityDraft security)
    {
        for (qint32 i = 0; i < security.listedIdentities.count(); ++i)
            addUser(security.listedIdentities, i);
        for (qint32 i = 0; i < security.listedClasses.count(); ++i)
            mStored.classes.findOrAdd(security.listedClasses.ref(i));
        addMemberClasses();
        for (qint32 i = 0; i < security.roles.count(); ++i)
            mStored.roles.findOrAdd(security.roles.ref(i));

        const std::vector<qint32> users = usersNamedIn(security.namedIdentities);
        const std::vector<qint32> classes = classesNamedIn(security.namedClasses);
        for (AccessTable::Record &record : security.roleAccess.records)
            record.column = users[size_t(record.column)];
        for (AccessTable::Record &record : security.classAccess.records)
            record = {classes[size_t(record.row)], users[size_t(record.column)], record.code};
        mStored.roleAccess = table(security.roleAccess, mStored.roles);
        mStored.classAccess = table(security.classAccess, mStored.classes);
    }

private:
    /// Without a security file nothing tells which classes there are, and so none is amiss.
    void addMemberClasses()
    {
        const Names &named = mDraft.securityClasses;
        for (qint32 i = 0; i < named.count(); ++i) {
            if (mDraft.security && mStored.classes.find(named.at(i)) < 0 &&
                !sameLabel(named.at(i), "[Default]"))
                warnOfClass(named, i);
            mStored.memberClasses.push_back(mStored.classes.findOrAdd(named.ref(i)));
        }
    }

    void warnOfClass(const Names &named, qint32 index)
    {
        mDraft.warnings.add(named.place(index), [&] {
            return QStringLiteral("The security class %1 is nowhere defined.")
                .arg(quoted(named.at(index)));
        });
    }

    qint32 addUser(const Names &identities, qint32 index)
    {
        const QByteArrayView identity = identities.at(index);
        const qint32 before = mStored.users.count();
        const qint32 user = mStored.users.findOrAdd(QByteArrayView(listedName(identity)));
        if (user == before && (identity.startsWith('@') || identity.endsWith('@')))
            mDraft.warnings.add(identities.place(index), [&] {
                return QStringLiteral("%1 lacks a name or a directory.").arg(quoted(identity));
            });
        return user;
    }

    /// For each identity that a record names, its user. Those that the file does not list follow
    /// the others.
    std::vector<qint32> usersNamedIn(const Names &identities)
    {
        const qint32 listed = mStored.users.count();
        std::vector<qint32> users;
        for (qint32 i = 0; i < identities.count(); ++i) {
            users.push_back(addUser(identities, i));
            if (users.back() >= listed)
                mDraft.warnings.add(identities.place(i), [&] {
                    return QStringLiteral("%1 is not listed among the users and groups.")
                        .arg(quoted(identities.at(i)));
                });
        }
        return users;
    }

    std::vector<qint32> classesNamedIn(const Names &named)
    {
        std::vector<qint32> classes;
        for (qint32 i = 0; i < named.count(); ++i) {
            if (mStored.classes.find(named.at(i)) < 0)
                warnOfClass(named, i);
            classes.push_back(mStored.classes.findOrAdd(named.ref(i)));
        }
        return classes;
    }

    /// `rows` are the names of what there is access to.
    AccessTable table(const AccessRecords &access, const Labels &rows)
    {
        std::vector<size_t> repeated;
        AccessTable made(rows.count(), mStored.users.count(), access.records, repeated);
        for (const size_t at : repeated)
            mDraft.warnings.add(access.places[at], [&] {
                const AccessTable::Record &record = access.records[at];
                return QStringLiteral("%1 has a record for %2 already; this one is left out.")
                    .arg(quoted(mStored.users.at(record.column)), quoted(rows.at(record.row)));
            });
        return made;
    }

    ApplicationDraft &mDraft;
    StoredSecurity &mStored;
};

} // namespace

StoredSecurity storeSecurity(ApplicationDraft &draft)
{
    StoredSecurity stored(*draft.arena);
    SecurityFinisher finisher(draft, stored);
    finisher.finish(draft.security ? std::move(*draft.security) : SecurityDraft(*draft.arena));
    draft.security.reset();
    return stored;
}

} // namespace hfm::offline
