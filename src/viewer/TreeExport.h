#pragma once

#include "runtime/Prompts.h"
#include "runtime/Spreadsheet.h"
#include "viewer/MemberTree.h"

/// A member tree in a worksheet: a header row, then one row for each node, with the label in the
/// column of the node's level, the description two columns behind the levels, and the attributes
/// behind it.
class TreeExport
{
public:
    /// What is exported.
    struct Source
    {
        const MemberTree *tree; ///< null: no node
        qint32 top;           ///< the root of the top-member view; MemberTree::none: the full tree
        qint32 levels;        ///< of the view
        qint32 maxLevel;      ///< of the full tree
        bool showsAttributes; ///< the node texts do
        bool writesAttributes;
    };

    /// Asks whether the attributes are to be written.
    static Prompt attributesQuestion();

    /// `sheet` and the source's tree outlive this object.
    TreeExport(Worksheet &sheet, const Source &source) : mSheet(sheet), mSource(source) {}

    /// The captions of the levels and of the description. Fails as setCell() does.
    void writeHeader();
    /// The nodes in the order in which they were added; the first one brings the captions of the
    /// attributes. Their columns follow the full tree's levels in the top-member view too, and a
    /// '\\' in a node's text sets it and all below it one level deeper: both kept.
    /// Fails as setCell() does, and with RuntimeError InvalidProcedureCall at a text that has no
    /// label: one without '-', or that begins with it.
    void writeNodes();

private:
    void writeFullTree();
    void writeTopMember();
    void writeNode(qint32 level, QStringView text);
    void writeAttributes(QStringView attributes);
    void setText(qint32 row, qint32 column, QStringView text);

    Worksheet &mSheet;
    Source mSource;
    qint32 mRow = 1;
    QString mText;
};
