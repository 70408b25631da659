#include "viewer/NodeText.h"

#include "runtime/RuntimeError.h"

#include <algorithm>

QStringView NodeText::labelOf(QStringView text)
{
    const qsizetype length = text.indexOf(u'-') - 1;
    if (length < 0)
        throw RuntimeError(InvalidProcedureCall);
    return text.first(length);
}

NodeText NodeText::split(QStringView text, Opening opening)
{
    NodeText parts;
    parts.label = labelOf(text);
    const qsizetype hyphen = text.indexOf(u'-');
    const qsizetype start = std::min(hyphen + 2, text.size());
    qsizetype open = -1;
    if (opening == Opening::Last)
        open = text.lastIndexOf(u'(');
    else if (opening == Opening::FirstBehindHyphen)
        open = text.indexOf(u'(', hyphen);
    if (open < 0) {
        parts.description = text.sliced(start);
        return parts;
    }
    const qsizetype end = std::max(open - 1, start);
    parts.description = text.sliced(start, end - start);
    parts.attributes = text.sliced(open + 1);
    if (parts.attributes.endsWith(u')'))
        parts.attributes.chop(1);
    return parts;
}
