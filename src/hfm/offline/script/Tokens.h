#pragma once

#include "hfm/offline/script/NameTable.h"
#include "hfm/offline/script/Position.h"
#include "hfm/offline/script/Value.h"

#include <deque>
#include <vector>

namespace hfm::offline::script {

enum class TokenKind : quint8 {
    EndOfFile,
    EndOfLine,
    Colon,
    Comma,
    Dot,
    Open,
    Close,
    Name,
    Literal,
    // Operators
    Plus,
    Minus,
    Times,
    Divide,
    IntegerDivide,
    Power,
    Join,
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    // Keywords, in the order of keywordSpellings
    FirstKeyword,
    And = FirstKeyword,
    ByRef,
    ByVal,
    Call,
    Case,
    Const,
    Dim,
    Do,
    Each,
    Else,
    ElseIf,
    Empty,
    End,
    Error,
    Exit,
    Explicit,
    False,
    For,
    Function,
    GoTo,
    If,
    In,
    Is,
    Loop,
    Mod,
    Next,
    Not,
    Nothing,
    Null,
    On,
    Option,
    Or,
    Preserve,
    Private,
    Public,
    ReDim,
    Rem,
    Resume,
    Select,
    Set,
    Step,
    Sub,
    Then,
    To,
    True,
    Until,
    Wend,
    While,
    Xor,
    // Keywords of VBScript that member lists cannot use here
    FirstUnused,
    Class = FirstUnused,
    Eqv,
    Erase,
    Imp,
    Let,
    New,
    Property,
    Randomize,
    Stop,
    With,
    Count
};

struct Token
{
    TokenKind kind = TokenKind::EndOfFile;
    /// Of names and keywords the name's number, of literals the position among the literals.
    qint32 index = -1;
    Position position;
};

/// A script as its words. Keywords are the first names of the table.
struct Tokens
{
    std::vector<Token> tokens; ///< the last is EndOfFile
    NameTable names;
    std::deque<Value> literals;
};

/// What a keyword, an operator or a sign looks like, for messages; empty for names and literals.
QString spellingOf(TokenKind kind);

/// The keyword that a name is, or TokenKind::Name. The table must begin with the keywords.
TokenKind keywordOf(NameId name);
/// Fills an empty table with the keywords.
void addKeywords(NameTable &names);

} // namespace hfm::offline::script
