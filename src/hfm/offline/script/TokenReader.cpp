#include "hfm/offline/script/TokenReader.h"

namespace hfm::offline::script {

Token TokenReader::expect(TokenKind kind)
{
    if (peek().kind != kind)
        failExpecting(QStringLiteral("'%1'").arg(spellingOf(kind)));
    return take();
}

Token TokenReader::expectName()
{
    if (kind() != TokenKind::Name)
        failExpecting(QStringLiteral("identifier"));
    return take();
}

void TokenReader::failAt(Position position, const QString &text)
{
    throw ScriptError(position, SyntaxFault, text);
}

void TokenReader::failExpecting(const QString &what) const
{
    if (kind() >= TokenKind::FirstUnused && kind() < TokenKind::Count)
        fail(QStringLiteral("Expected %1; '%2' cannot be used in member lists here")
                 .arg(what, spellingOf(kind())));
    fail(QStringLiteral("Expected %1").arg(what));
}

TokenReader::Nesting::Nesting(TokenReader &reader) : mReader(reader)
{
    constexpr int deepest = 128;
    if (++mReader.mDepth > deepest) {
        --mReader.mDepth;
        mReader.fail(tooDeep());
    }
}

} // namespace hfm::offline::script
