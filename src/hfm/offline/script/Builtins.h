#pragma once

#include "hfm/offline/script/Host.h"

#include <QStringView>

namespace hfm::offline::script {

/// A function of the language.
struct Builtin
{
    const char *name;
    qint32 leastArguments;
    qint32 mostArguments;
    /// Called with as many arguments as these bounds allow. Fails with Fault.
    Value (*function)(Arguments arguments, RunState &run);
};

/// The function of that name, in any letter case, or nullptr.
const Builtin *findBuiltin(QStringView name);
/// The constant of that name, such as vbCrLf, in any letter case, or nullptr.
const Value *findBuiltinConstant(QStringView name);

// The functions by kind.
std::span<const Builtin> arrayFunctions();
std::span<const Builtin> conversionFunctions();
std::span<const Builtin> dateFunctions();
std::span<const Builtin> numberFunctions();
std::span<const Builtin> searchFunctions();
std::span<const Builtin> textFunctions();

/// The argument at that position as a whole number, or `otherwise` where it is not given.
qint32 longArgument(Arguments arguments, size_t position, qint32 otherwise, RunState &run);
/// Whether the argument at that position says vbTextCompare; fails with InvalidCall where it is
/// neither that nor vbBinaryCompare.
Qt::CaseSensitivity comparisonArgument(Arguments arguments, size_t position, RunState &run);

} // namespace hfm::offline::script
