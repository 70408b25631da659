#include "hfm/offline/script/Scanner.h"

#include "hfm/offline/script/NumberText.h"

#include <cmath>

namespace hfm::offline::script {

namespace {

class Scanner
{
public:
    explicit Scanner(QStringView text) : mText(text) { addKeywords(mResult.names); }

    Tokens scan()
    {
        while (mAt < mText.size())
            scanOne();
        add(TokenKind::EndOfLine, position());
        add(TokenKind::EndOfFile, position());
        return std::move(mResult);
    }

private:
    // Reading.

    QChar peek(qsizetype ahead = 0) const
    {
        return mAt + ahead < mText.size() ? mText[mAt + ahead] : QChar(u'\0');
    }
    static bool isLineEnd(QChar c) { return c == u'\n' || c == u'\r'; }
    static bool isBlank(QChar c) { return c.isSpace() && !isLineEnd(c); }
    static bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }
    static bool isOfName(QChar c) { return c.isLetterOrNumber() || c == u'_'; }
    Position position() const { return {mLine, qint32(mAt - mLineStart) + 1}; }

    [[noreturn]] static void fail(Position position, const QString &text)
    {
        throw ScriptError(position, SyntaxFault, text);
    }
    void add(TokenKind kind, Position position, qint32 index = -1)
    {
        mResult.tokens.push_back({kind, index, position});
    }
    void addLiteral(Position position, Value value)
    {
        add(TokenKind::Literal, position, qint32(mResult.literals.size()));
        mResult.literals.push_back(std::move(value));
    }

    // Words.

    void scanOne()
    {
        const QChar c = peek();
        if (isLineEnd(c)) {
            add(TokenKind::EndOfLine, position());
            takeLineEnd();
        } else if (isBlank(c) || c == u'\uFEFF') {
            ++mAt;
        } else if (c == u'\'') {
            skipLine();
        } else if (c == u'"') {
            scanText();
        } else if (isDigit(c) || (c == u'.' && isDigit(peek(1)))) {
            scanNumber();
        } else if (c == u'[') {
            scanBracketedName();
        } else if (c.isLetter()) {
            scanName();
        } else if (c == u'_') {
            takeContinuation();
        } else if (c == u'&' && isBasedNumber()) {
            scanBasedNumber();
        } else {
            scanSign();
        }
    }

    void takeLineEnd()
    {
        mAt += peek() == u'\r' && peek(1) == u'\n' ? 2 : 1;
        mLineStart = mAt;
        ++mLine;
    }

    void skipLine()
    {
        while (mAt < mText.size() && !isLineEnd(peek()))
            ++mAt;
    }

    /// An underscore that ends a line: the next line belongs to it.
    void takeContinuation()
    {
        const Position start = position();
        ++mAt;
        while (mAt < mText.size() && isBlank(peek()))
            ++mAt;
        if (mAt < mText.size() && !isLineEnd(peek()))
            fail(start, QStringLiteral("Invalid character '_'; a line ends after it"));
        if (mAt < mText.size())
            takeLineEnd();
    }

    void scanText()
    {
        const Position start = position();
        QString text;
        for (++mAt;; ++mAt) {
            qsizetype end = mAt;
            while (end < mText.size() && mText[end] != u'"' && !isLineEnd(mText[end]))
                ++end;
            text += mText.sliced(mAt, end - mAt);
            mAt = end;
            if (peek() != u'"')
                fail(start, QStringLiteral("Unterminated string constant"));
            if (peek(1) != u'"')
                break;
            text += u'"';
            ++mAt;
        }
        ++mAt;
        addLiteral(start, Value(Text(text, nullptr)));
    }

    void scanNumber()
    {
        const Position start = position();
        const qsizetype first = mAt;
        bool isWhole = true;
        while (isDigit(peek()))
            ++mAt;
        if (peek() == u'.') {
            isWhole = false;
            for (++mAt; isDigit(peek());)
                ++mAt;
        }
        if (peek() == u'e' || peek() == u'E') {
            isWhole = false;
            mAt += peek(1) == u'+' || peek(1) == u'-' ? 2 : 1;
            while (isDigit(peek()))
                ++mAt;
        }
        const auto number = numberIn(mText.sliced(first, mAt - first));
        if (!number || isOfName(peek()))
            fail(start, QStringLiteral("Invalid number"));
        const bool isInteger = isWhole && *number <= 2147483647.0;
        addLiteral(start, isInteger ? Value::integer(qint32(*number)) : Value::number(*number));
    }

    /// Whether &H or &O begins a number here; right behind a value it joins texts.
    bool isBasedNumber() const
    {
        const QChar base = peek(1).toLower();
        const QChar digit = peek(2).toLower();
        const bool isHex = base == u'h' && (isDigit(digit) || (digit >= u'a' && digit <= u'f'));
        if (!isHex && (base != u'o' || !isDigit(digit)))
            return false;
        const QChar before = mAt > 0 ? mText[mAt - 1] : QChar(u' ');
        return !isOfName(before) && before != u'"' && before != u')' && before != u']';
    }

    void scanBasedNumber()
    {
        const Position start = position();
        const int base = peek(1).toLower() == u'h' ? 16 : 8;
        mAt += 2;
        const qsizetype first = mAt;
        while (isOfName(peek()))
            ++mAt;
        const auto number = basedNumber(mText.sliced(first, mAt - first), base);
        if (!number)
            fail(start, QStringLiteral("Invalid number"));
        if (peek() == u'&')
            ++mAt;
        addLiteral(start, Value::integer(*number));
    }

    void scanBracketedName()
    {
        const Position start = position();
        const qsizetype first = mAt + 1;
        while (mAt < mText.size() && !isLineEnd(peek()) && peek() != u']')
            ++mAt;
        if (peek() != u']')
            fail(start, QStringLiteral("Expected ']'"));
        add(TokenKind::Name, start, mResult.names.add(mText.sliced(first, mAt - first)));
        ++mAt;
    }

    void scanName()
    {
        const Position start = position();
        const qsizetype first = mAt;
        while (isOfName(peek()))
            ++mAt;
        const NameId name = mResult.names.add(mText.sliced(first, mAt - first));
        const TokenKind kind = keywordOf(name);
        const bool isMember =
            !mResult.tokens.empty() && mResult.tokens.back().kind == TokenKind::Dot;
        if (isMember)
            add(TokenKind::Name, start, name);
        else if (kind == TokenKind::Rem)
            skipLine();
        else
            add(kind, start, name);
    }

    void scanSign()
    {
        const Position start = position();
        const TokenKind kind = takeSign();
        if (kind == TokenKind::EndOfFile)
            fail(start, mText[mAt].isPrint()
                            ? QStringLiteral("Invalid character '%1'").arg(mText[mAt])
                            : QStringLiteral("Invalid character"));
        add(kind, start);
    }

    /// Reads a sign; EndOfFile, and nothing read, where there is none.
    TokenKind takeSign()
    {
        struct Sign
        {
            QStringView text;
            TokenKind kind;
        };
        static constexpr Sign signs[] = {
            {u"<>", TokenKind::NotEqual},
            {u"><", TokenKind::NotEqual},
            {u"<=", TokenKind::LessOrEqual},
            {u"=<", TokenKind::LessOrEqual},
            {u">=", TokenKind::GreaterOrEqual},
            {u"=>", TokenKind::GreaterOrEqual},
            {u"<", TokenKind::Less},
            {u">", TokenKind::Greater},
            {u"=", TokenKind::Equal},
            {u"+", TokenKind::Plus},
            {u"-", TokenKind::Minus},
            {u"*", TokenKind::Times},
            {u"/", TokenKind::Divide},
            {u"\\", TokenKind::IntegerDivide},
            {u"^", TokenKind::Power},
            {u"&", TokenKind::Join},
            {u"(", TokenKind::Open},
            {u")", TokenKind::Close},
            {u",", TokenKind::Comma},
            {u".", TokenKind::Dot},
            {u":", TokenKind::Colon},
        };
        for (const Sign &sign : signs) {
            if (mText.sliced(mAt).startsWith(sign.text)) {
                mAt += sign.text.size();
                return sign.kind;
            }
        }
        return TokenKind::EndOfFile;
    }

    QStringView mText;
    qsizetype mAt = 0;
    qsizetype mLineStart = 0;
    qint32 mLine = 1;
    Tokens mResult;
};

} // namespace

Tokens scan(QStringView text)
{
    return Scanner(text).scan();
}

} // namespace hfm::offline::script
