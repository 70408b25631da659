#pragma once

#include "hfm/offline/script/Tokens.h"

#include <span>

/// The tree of a script. Its nodes stand in the arena of the Program that they belong to and are
/// given back with it, so they hold nothing that must be destroyed.
namespace hfm::offline::script {

struct Builtin;

// Expressions

enum class ExpressionKind : quint8 { Literal, Name, Member, Apply, Unary, Chain };

struct Expression
{
    ExpressionKind kind;
    /// In parentheses of its own, so that an argument is given by value.
    bool isParenthesized = false;
    quint16 depth = 1; ///< how deep expressions nest here, this one included
    Position position;
};

struct Literal : Expression
{
    const Value *value;
};

/// What a name stands for. Found when the whole script is read.
enum class Binding : quint8 {
    Unbound,
    Local,     ///< a slot of the procedure
    Global,    ///< a slot of the script
    Result,    ///< the slot of the function's own result; with arguments, a call of it
    Constant,  ///< `constant`
    Procedure, ///< `index` among the script's procedures
    Builtin,   ///< `builtin`
    HostObject,
    LastError, ///< the object Err
    Undefined, ///< not declared, although the script says Option Explicit
    Unknown,   ///< used like a function or an object, and nothing of that name is known
};

struct Name : Expression
{
    NameId name;
    Binding binding = Binding::Unbound;
    /// Stands before arguments, before a dot or alone in a statement, where nothing but a function
    /// or an object makes sense if it is not declared.
    bool isCallee = false;
    bool isFixedArray = false; ///< a variable that was declared with its bounds
    qint32 index = -1;         ///< slot or procedure
    union {
        const Value *constant = nullptr;
        const Builtin *builtin;
    };
};

/// object.name
struct Member : Expression
{
    Expression *object;
    NameId name;
};

/// callee(arguments): an element, a call of a procedure or of an object's method.
struct Apply : Expression
{
    Expression *callee;
    std::span<Expression *const> arguments;
};

struct Unary : Expression
{
    TokenKind operation; ///< Minus, Plus or Not
    Expression *operand;
};

/// Operands of operators of one precedence, evaluated from left to right. One node for all of them,
/// so that a long sum is no deep tree.
struct Chain : Expression
{
    struct Link
    {
        TokenKind operation;
        Position position;
        Expression *operand;
    };
    Expression *first;
    std::span<const Link> links;
};

// Statements

enum class StatementKind : quint8 {
    Assign,
    Call,
    If,
    Select,
    For,
    ForEach,
    DoLoop,
    Dim,
    ReDim,
    Exit,
    OnError,
};

struct Statement
{
    StatementKind kind;
    qint32 cost = 1; ///< in steps; long expressions cost more than one
    Position position;
};

using Block = std::span<const Statement *const>;

struct Assign : Statement
{
    Expression *target; ///< Name, Member or Apply
    Expression *value;
    bool isSet;
};

struct CallStatement : Statement
{
    Expression *call; ///< Name, Member or Apply
};

struct If : Statement
{
    struct Branch
    {
        Expression *condition;
        Block block;
    };
    std::span<const Branch> branches;
    Block otherwise;
};

struct Select : Statement
{
    struct Case
    {
        std::span<Expression *const> values;
        Block block;
    };
    Expression *subject;
    std::span<const Case> cases;
    Block otherwise;
};

struct For : Statement
{
    Name *variable;
    Expression *from;
    Expression *to;
    Expression *step; ///< nullptr for 1
    Block block;
};

struct ForEach : Statement
{
    Name *variable;
    Expression *collection;
    Block block;
};

struct DoLoop : Statement
{
    Expression *condition; ///< nullptr for an endless loop
    bool isUntil;
    bool isTestedLast;
    Block block;
};

struct Dim : Statement
{
    Name *variable;
    std::span<const qint32> bounds; ///< upper bounds; none for an array without any yet
};

struct ReDim : Statement
{
    Name *variable;
    bool preserves;
    std::span<Expression *const> bounds;
};

enum class ExitKind : quint8 { For, Do, Procedure };

struct Exit : Statement
{
    ExitKind what;
};

struct OnError : Statement
{
    bool resumesNext; ///< otherwise GoTo 0
};

} // namespace hfm::offline::script
