#pragma once

#include "hfm/Dimension.h"
#include "viewer/TextStore.h"

#include <vector>

/// The occurrences of a dimension's members, each with its path entry: the text
/// "<parentID>_<parentLabel>#<memberID>_<memberLabel>", for a top-level member
/// "-1_ROOT#<memberID>_<memberLabel>". They stand in depth-first pre-order: a parent's entry, its
/// whole subtree, its next sibling.
///
/// An entry is read back as text. Its parent part is everything before its first '#', its child
/// part everything after it, so a label with a '#' in it shifts the parts of its children's
/// entries: HFM forbids such labels, but files hold them.
class MemberPaths
{
public:
    static constexpr qint32 none = -1;
    /// The most occurrences that are read. Parents that share whole subtrees can multiply them
    /// beyond any memory.
    static constexpr qint32 mostOccurrences = 1 << 25;

    struct Occurrence
    {
        hfm::MemberId member;
        qint32 parent;       ///< the position of the parent's occurrence, none below the root
        StoredText label;    ///< valid as long as the entries are
        bool splitsChildren; ///< the label holds a '#'
    };

    /// Replaces the entries by those of the dimension: EnumChildMembers once for the root and for
    /// each occurrence, GetMemberLabel once for each occurrence.
    /// Fails as these operations do, keeping what was read so far; with error 28 "Out of stack
    /// space" where a member stands below itself, and with RuntimeError OutOfMemory where there
    /// are more than `most` occurrences.
    void read(hfm::Dimension &dimension, qint32 most = mostOccurrences);

    qint32 count() const { return qint32(mOccurrences.size()); }
    const Occurrence &at(qint32 position) const { return mOccurrences[size_t(position)]; }

    QString entry(qint32 position) const;
    QString parentPart(qint32 position) const;
    QString childPart(qint32 position) const;
    /// Whether any entry's parent part can equal this entry's child part. A parent part never
    /// holds a '#'.
    bool canBeFound(qint32 position) const;
    /// The child part up to its first '_', as a number; it is the member's own ID unless the
    /// parent's label holds a '#'.
    /// Fails with RuntimeError TypeMismatch where that is no number, and with Overflow where it
    /// has more than 32 bits.
    hfm::MemberId memberId(qint32 position) const;

private:
    std::vector<Occurrence> mOccurrences;
    TextStore mLabels;
};

/// "<parentID>_<parentLabel>#<memberID>_<memberLabel>"
QString memberPathEntry(hfm::MemberId parent, QStringView parentLabel, hfm::MemberId member,
                        QStringView label);
/// The label that the root has in a path entry.
inline constexpr QStringView rootPathLabel = u"ROOT";
