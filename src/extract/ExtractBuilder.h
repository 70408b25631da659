#pragma once

#include "hfm/Dimension.h"

#include <QString>

/// The words that mark a row's child as a parent or as a base member. One that is empty or holds
/// only blanks marks nothing.
struct ExtractIndicators
{
    QString parent;
    QString base;

    friend bool operator==(const ExtractIndicators &, const ExtractIndicators &) = default;
};

/// An extract: one line for each parent-child relation, every line ended by CR LF.
struct ExtractTexts
{
    QString rows;
    QString rowsWithHeader; ///< a header line, then the same rows
};

/// The longest extract, in characters. Parents that share whole subtrees can multiply the rows
/// beyond any memory; a text box would not show more either.
inline constexpr qsizetype longestExtract = qsizetype(1) << 30;

/// Walks the dimension from its top-level members down, every occurrence once, each row followed
/// at once by the rows of the child's own subtree. A row holds the parent's label and description,
/// the child's, and the indicator that applies to the child, each between double quotes and
/// separated by commas; a top-level member's parent fields are empty. Labels and descriptions stand
/// as HFM gives them: a quote inside one is not doubled. Where the indicator is blank the row ends
/// after the child's description.
///
/// `language` is the 0-based position of the descriptions' language. A dimension without members
/// gives no rows, and a header alone.
/// Fails as the dimension's operations do, with RuntimeError Overflow where a parent has more than
/// 32,767 children, and OutOfStringSpace where a text would be longer than `longest`.
ExtractTexts buildExtract(hfm::Dimension &dimension, qint16 language,
                          const ExtractIndicators &indicators, qsizetype longest = longestExtract);
