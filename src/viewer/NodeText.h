#pragma once

#include <QStringView>

/// A node's text taken apart again: "<label> - <description> (<attributes>)". Labels and
/// descriptions may hold what the text is cut at, and then are cut there: kept.
struct NodeText
{
    QStringView label;
    QStringView description;
    QStringView attributes;

    /// Where the attributes begin.
    enum class Opening {
        None,              ///< the text shows no attributes
        Last,              ///< behind the last '('
        FirstBehindHyphen, ///< behind the first '(' after the first '-'
    };

    /// The parts of `text`, which outlives them.
    /// The label is what is left of the first '-' but for one character, and the description begins
    /// two characters behind it; it ends one before the '(', and is empty where that is no further.
    /// The attributes' last character is left out when it is ')'. A text without that '(' has none.
    /// Fails as labelOf() does.
    static NodeText split(QStringView text, Opening opening);

    /// The first (position of the first '-' minus 2) characters.
    /// Fails with RuntimeError InvalidProcedureCall where the '-' stands at the very beginning, or
    /// nowhere.
    static QStringView labelOf(QStringView text);
};
