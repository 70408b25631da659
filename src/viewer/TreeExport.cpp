#include "viewer/TreeExport.h"

#include "viewer/NodeText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint32 headerRow = 1;

/// How deep a node stands below the level of its parent: the path to it is cut at each '\\'.
qint32 depthOf(QStringView text)
{
    return 1 + qint32(text.count(u'\\'));
}

} // namespace

Prompt TreeExport::attributesQuestion()
{
    return {u"Print Attributes"_s, u"Print metadata attributes?"_s, Prompt::Icon::Question,
            Prompt::Buttons::YesNo};
}

void TreeExport::writeHeader()
{
    for (qint32 level = 1; level <= mSource.levels; ++level)
        setText(headerRow, level, u"Level "_s + QString::number(level));
    setText(headerRow, mSource.levels + 2, u"Description");
}

void TreeExport::writeNodes()
{
    if (!mSource.tree)
        return;
    if (mSource.top == MemberTree::none)
        writeFullTree();
    else
        writeTopMember();
}

void TreeExport::writeFullTree()
{
    const MemberTree &tree = *mSource.tree;
    std::vector<qint32> levels; // of the nodes so far: a parent stands before its children
    for (qint32 node = 0; node < tree.count(); ++node) {
        const QString text = tree.text(node);
        const qint32 parent = tree.parent(node);
        const qint32 above = parent == MemberTree::none ? 0 : levels[size_t(parent)];
        levels.push_back(above + depthOf(text));
        writeNode(levels.back(), text);
    }
}

// The walk keeps its own stack: hierarchies can be deeper than the thread's.
void TreeExport::writeTopMember()
{
    struct Waiting
    {
        qint32 node;
        qint32 above; ///< the parent's level
    };
    const MemberTree &tree = *mSource.tree;
    std::vector<Waiting> waiting = {{mSource.top, 0}};
    while (!waiting.empty()) {
        const auto [node, above] = waiting.back();
        waiting.pop_back();
        const QString text = tree.text(node);
        const qint32 level = above + depthOf(text);
        writeNode(level, text);
        for (qint32 row = tree.childCount(node) - 1; row >= 0; --row)
            waiting.push_back({tree.child(node, row), level});
    }
}

void TreeExport::writeNode(qint32 level, QStringView text)
{
    using Opening = NodeText::Opening;
    const bool isWhole = mSource.top == MemberTree::none;
    const Opening opening = isWhole ? Opening::Last : Opening::FirstBehindHyphen;
    const NodeText parts = NodeText::split(text, mSource.showsAttributes ? opening : Opening::None);
    ++mRow;
    mSheet.setCell(mRow, level, parts.label);
    mSheet.setCell(mRow, mSource.levels + 2, parts.description);
    if (mSource.writesAttributes)
        writeAttributes(parts.attributes);
}

void TreeExport::writeAttributes(QStringView attributes)
{
    qint32 column = mSource.maxLevel + 3;
    for (const QStringView item : QStringTokenizer(attributes, u',')) {
        if (mRow == headerRow + 1)
            setText(headerRow, column, item.left(item.indexOf(u'=')));
        setText(mRow, column, item);
        ++column;
    }
}

/// Writes with the apostrophe that marks a text.
void TreeExport::setText(qint32 row, qint32 column, QStringView text)
{
    mText.resize(0);
    mText += u'\'';
    mText += text;
    mSheet.setCell(row, column, mText);
}
