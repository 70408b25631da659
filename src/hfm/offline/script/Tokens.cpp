#include "hfm/offline/script/Tokens.h"

#include <array>

namespace hfm::offline::script {

namespace {

constexpr std::array keywordSpellings = {
    "And",       "ByRef",   "ByVal",    "Call",    "Case", "Const",  "Dim",    "Do",
    "Each",      "Else",    "ElseIf",   "Empty",   "End",  "Error",  "Exit",   "Explicit",
    "False",     "For",     "Function", "GoTo",    "If",   "In",     "Is",     "Loop",
    "Mod",       "Next",    "Not",      "Nothing", "Null", "On",     "Option", "Or",
    "Preserve",  "Private", "Public",   "ReDim",   "Rem",  "Resume", "Select", "Set",
    "Step",      "Sub",     "Then",     "To",      "True", "Until",  "Wend",   "While",
    "Xor",       "Class",   "Eqv",      "Erase",   "Imp",  "Let",    "New",    "Property",
    "Randomize", "Stop",    "With",
};
static_assert(keywordSpellings.size() ==
              size_t(TokenKind::Count) - size_t(TokenKind::FirstKeyword));

} // namespace

QString spellingOf(TokenKind kind)
{
    static constexpr std::array signs = {"",  "",  ":",  ",", ".", "(", ")",  "",  "",   "+", "-",
                                         "*", "/", "\\", "^", "&", "=", "<>", "<", "<=", ">", ">="};
    static_assert(signs.size() == size_t(TokenKind::FirstKeyword));
    const auto index = size_t(kind);
    return QLatin1StringView(index < signs.size() ? signs[index]
                                                  : keywordSpellings[index - signs.size()]);
}

TokenKind keywordOf(NameId name)
{
    return size_t(name) < keywordSpellings.size()
               ? TokenKind(size_t(TokenKind::FirstKeyword) + size_t(name))
               : TokenKind::Name;
}

void addKeywords(NameTable &names)
{
    for (const char *spelling : keywordSpellings)
        names.add(QLatin1StringView(spelling).toString());
}

} // namespace hfm::offline::script
