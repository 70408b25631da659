#pragma once

#include "hfm/offline/script/Program.h"

#include <unordered_map>

namespace hfm::offline::script {

/// The names of one procedure, or of the script outside of procedures, while it is read.
class Scope
{
public:
    /// Something that is declared: a variable with its slot, or a constant.
    struct Declaration
    {
        qint32 slot = -1;
        bool isFixedArray = false;
        const Value *constant = nullptr;
    };

    qint32 slotCount() const { return mSlotCount; }
    qint32 addSlot() { return mSlotCount++; }
    /// Declares a name; false where it is declared already.
    bool declare(NameId name, const Declaration &declaration)
    {
        return mDeclarations.emplace(name, declaration).second;
    }
    const Declaration *find(NameId name) const
    {
        const auto found = mDeclarations.find(name);
        return found == mDeclarations.end() ? nullptr : &found->second;
    }

    NameId resultName = -1; ///< of a function
    std::vector<Name *> uses;

private:
    qint32 mSlotCount = 0;
    std::unordered_map<NameId, Declaration> mDeclarations;
};

/// Finds what the names of a script stand for, when all of it has been read.
class Binder
{
public:
    Binder(Program &program, const QList<QString> &objects, bool isExplicit);

    /// Binds the names outside of procedures; the first to be called.
    void bindMain(Scope &scope);
    /// Binds a procedure's names and sets its number of slots.
    void bind(Scope &scope, Procedure &procedure);

private:
    bool bindDeclared(Name &use, const Scope &scope, Binding binding) const;
    bool bindKnown(Name &use) const;
    void declareImplicit(Scope &scope) const;

    Program &mProgram;
    bool mIsExplicit;
    std::unordered_map<NameId, qint32> mProcedures;
    std::vector<NameId> mObjects;
    Scope *mMain = nullptr;
};

} // namespace hfm::offline::script
