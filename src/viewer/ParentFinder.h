#pragma once

#include "viewer/MemberPaths.h"

#include <QHash>

/// Finds the node that each path entry is attached to. By definition that is the first one found
/// from the most recently added node back whose child part equals the entry's parent part, so that
/// each occurrence of a shared parent takes the children in its own branch. Here it is found in
/// constant time, for any labels.
class ParentFinder
{
public:
    /// `paths` outlives the finder.
    explicit ParentFinder(const MemberPaths &paths) : mPaths(paths) {}

    /// The position of the entry that the entry at `position` is attached to, where all those
    /// before it have been added. MemberPaths::none for a root node: an entry with the parent part
    /// "-1_ROOT", and one whose parent part is found nowhere, which only labels with '#' can cause.
    /// Positions are asked for in rising order.
    qint32 parentOf(qint32 position);

private:
    qint32 search(qint32 position);

    const MemberPaths &mPaths;
    QHash<QString, qint32> mNewest; ///< child parts that can be found, each with its latest entry
    qint32 mKnown = 0;              ///< the entries before this position are in mNewest
};
