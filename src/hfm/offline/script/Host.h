#pragma once

#include "hfm/offline/script/Value.h"

#include <QDateTime>

#include <span>

namespace hfm::offline::script {

struct RunState;

using Arguments = std::span<const Value>;

/// An object that a script can use but not make.
class HostObject
{
public:
    virtual ~HostObject() = default;
    /// As a script calls it, for messages: "HS.Entity".
    virtual QString name() const = 0;
    /// The value of a property, or what a method answers. `member` is a number that
    /// Host::memberNumber gave. Fails with Fault; with UnknownMember where this object has no such
    /// member.
    virtual Value invoke(qint32 member, Arguments arguments, RunState &run) = 0;
};

/// What a script sees of the program that runs it, and all that it sees.
class Host
{
public:
    virtual ~Host() = default;
    /// The object at that position of the names that the program was read with.
    virtual HostObject *object(qint32 position) = 0;
    /// What stands for a property's or a method's name, in any letter case; -1 where no object has
    /// such a one.
    virtual qint32 memberNumber(const QString &name) const = 0;
    /// The text of a label that the host gave to the script.
    virtual Text labelText(HostLabel label, RunState &run) = 0;
};

/// What all parts of a run share. The values of a run must not outlive it.
struct RunState
{
    Bounds bounds;
    Host &host;
    QDateTime now;
    Position at = {}; ///< of what is being evaluated
    // What On Error Resume Next passed over last.
    qint32 lastErrorNumber = 0;
    QString lastErrorText = {};

    Memory &memory() { return bounds.memory(); }
    /// A new text; its length counts as work.
    Value text(QStringView units)
    {
        bounds.work(units.size());
        return Value(Text(units, &memory()));
    }
};

} // namespace hfm::offline::script
