#include "hfm/offline/script/Scopes.h"

#include "hfm/offline/script/Builtins.h"

#include <algorithm>

namespace hfm::offline::script {

Binder::Binder(Program &program, const QList<QString> &objects, bool isExplicit)
    : mProgram(program), mIsExplicit(isExplicit)
{
    for (size_t i = 0; i < program.procedures.size(); ++i)
        mProcedures.emplace(program.procedures[i].name, qint32(i));
    for (const QString &object : objects)
        mObjects.push_back(program.names.find(object));
}

bool Binder::bindDeclared(Name &use, const Scope &scope, Binding binding) const
{
    const Scope::Declaration *declaration = scope.find(use.name);
    if (declaration == nullptr)
        return false;
    use.binding = binding;
    use.index = declaration->slot;
    use.isFixedArray = declaration->isFixedArray;
    if (declaration->constant != nullptr) {
        use.binding = Binding::Constant;
        use.constant = declaration->constant;
    }
    return true;
}

/// Binds a name that means something without being declared.
bool Binder::bindKnown(Name &use) const
{
    if (const auto procedure = mProcedures.find(use.name); procedure != mProcedures.end()) {
        use.binding = Binding::Procedure;
        use.index = procedure->second;
        return true;
    }
    const QString &name = mProgram.names.spelling(use.name);
    if (const Builtin *builtin = findBuiltin(name)) {
        use.binding = Binding::Builtin;
        use.builtin = builtin;
    } else if (const Value *constant = findBuiltinConstant(name)) {
        use.binding = Binding::Constant;
        use.constant = constant;
    } else if (const auto object = std::find(mObjects.begin(), mObjects.end(), use.name);
               object != mObjects.end()) {
        use.binding = Binding::HostObject;
        use.index = qint32(object - mObjects.begin());
    } else if (name.compare(QLatin1StringView("Err"), Qt::CaseInsensitive) == 0) {
        use.binding = Binding::LastError;
    }
    return use.binding != Binding::Unbound;
}

/// Gives a slot to every name that is used as a variable and not declared.
void Binder::declareImplicit(Scope &scope) const
{
    if (mIsExplicit)
        return;
    for (const Name *use : scope.uses) {
        if (use->binding == Binding::Unbound && !use->isCallee && scope.find(use->name) == nullptr)
            scope.declare(use->name, {scope.addSlot(), false, nullptr});
    }
}

void Binder::bindMain(Scope &scope)
{
    mMain = &scope;
    bind(scope, mProgram.main);
}

void Binder::bind(Scope &scope, Procedure &procedure)
{
    const bool isMain = &scope == mMain;
    for (Name *use : scope.uses) {
        if (scope.resultName >= 0 && use->name == scope.resultName) {
            use->binding = Binding::Result;
            use->index = procedure.resultSlot();
        } else if (!bindDeclared(*use, scope, isMain ? Binding::Global : Binding::Local) &&
                   !bindDeclared(*use, *mMain, Binding::Global)) {
            bindKnown(*use);
        }
    }
    declareImplicit(scope);
    for (Name *use : scope.uses) {
        if (use->binding == Binding::Unbound &&
            !bindDeclared(*use, scope, isMain ? Binding::Global : Binding::Local))
            use->binding = use->isCallee ? Binding::Unknown : Binding::Undefined;
    }
    procedure.slotCount = scope.slotCount();
}

} // namespace hfm::offline::script
