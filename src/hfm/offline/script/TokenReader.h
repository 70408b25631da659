#pragma once

#include "hfm/offline/script/Program.h"

namespace hfm::offline::script {

/// Goes through the tokens of a script for the parsers, and counts how deep they are in it.
class TokenReader
{
public:
    /// `literals` are those that the tokens count.
    TokenReader(const std::vector<Token> &tokens, const std::deque<Value> &literals)
        : mTokens(tokens), mLiterals(literals)
    {
    }

    const Token &peek(size_t ahead = 0) const
    {
        return mTokens[std::min(mAt + ahead, mTokens.size() - 1)];
    }
    TokenKind kind() const { return peek().kind; }
    Position position() const { return peek().position; }
    Token take()
    {
        const Token token = peek();
        ++mAt;
        return token;
    }
    bool takeIf(TokenKind kind)
    {
        if (peek().kind != kind)
            return false;
        ++mAt;
        return true;
    }
    /// Takes a token of that kind; fails with "Expected 'SPELLING'" where there is another.
    Token expect(TokenKind kind);
    /// Takes a name; fails with "Expected identifier" where there is none.
    Token expectName();

    [[noreturn]] void fail(const QString &text) const { failAt(position(), text); }
    [[noreturn]] static void failAt(Position position, const QString &text);
    /// Fails because of the next token; `what` says what should stand there.
    [[noreturn]] void failExpecting(const QString &what) const;

    static QString tooDeep() { return QStringLiteral("Statements or parentheses nest too deeply"); }

    const Value &literal(const Token &token) const { return mLiterals[size_t(token.index)]; }

    /// Held while something is read that can hold its like. Deeper nesting than any sensible
    /// script has is an error.
    class Nesting
    {
    public:
        explicit Nesting(TokenReader &reader);
        ~Nesting() { --mReader.mDepth; }
        Nesting(const Nesting &) = delete;
        Nesting &operator=(const Nesting &) = delete;

    private:
        TokenReader &mReader;
    };

private:
    const std::vector<Token> &mTokens;
    const std::deque<Value> &mLiterals;
    size_t mAt = 0;
    int mDepth = 0;
};

} // namespace hfm::offline::script
