#pragma once

#include "hfm/offline/script/Host.h"
#include "hfm/offline/script/Tokens.h"

/// What the operators do. Null makes every result Null but that of &, and of And and Or where the
/// other side decides alone.
namespace hfm::offline::script {

/// + - * / \ Mod ^
Value calculated(TokenKind operation, const Value &left, const Value &right, RunState &run);
/// And Or Xor: of truth where both sides are truth, else of the bits of whole numbers.
Value combined(TokenKind operation, const Value &left, const Value &right, RunState &run);
/// &
Value joined(const Value &left, const Value &right, RunState &run);
/// - and Not before a value
Value negated(const Value &value, RunState &run);
Value complemented(const Value &value, RunState &run);
/// Is
Value sameObject(const Value &left, const Value &right);

/// One side of a comparison. What stands as a literal in the script makes the other side follow it:
/// a text becomes a number beside a literal number, a number text beside a literal text. Of two
/// values that are no literals every number is less than every text.
struct Compared
{
    const Value &value;
    bool isLiteral;
};

/// = <> < > <= >=
Value compared(TokenKind operation, Compared left, Compared right, RunState &run);

} // namespace hfm::offline::script
