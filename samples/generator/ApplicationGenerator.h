#pragma once

#include <QString>

class QIODevice;

/// Makes applications of any size in HFM's APP format, for tests and benchmarks.
///
/// A generated application holds one dimension, the currencies and the languages that its members
/// need, and nothing that a reader would have to warn of: every parent, currency and top member
/// that is named exists, every member has a place in the hierarchy, no edge stands twice and there
/// is no cycle. Security classes are named ("SC_01" to "SC_12"), as a security file would list
/// them. The same request always gives the same bytes, on every machine.
namespace generator {

enum class Shape {
    Tree, ///< one top member; parents of varied fan-out, base members on every level from the third
    Chain, ///< one top member, each member the only child of the one before it
    Wide,  ///< one top member, all others its children
    Flat,  ///< top members only
};

enum class Encoding { Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian, Windows1252 };

enum class LineEnd { CrLf, Lf, Cr };

/// What to generate.
struct Request
{
    /// "Account", "Entity", "Scenario", "Custom1" to "Custom4", or another name, which becomes the
    /// one custom dimension of the application's !CUSTOM_ORDER.
    QString dimension = QStringLiteral("Entity");
    qint32 members = 1000;
    /// Lines of the hierarchy section, those of the top members included. Each one above `members`
    /// is a further parent for some member; 0 stands for as many as there are members. Only a Tree
    /// can have more.
    qint32 edges = 0;
    /// How many of the further parents go to members that are parents themselves. Their whole
    /// subtrees occur once more; all others go to base members, which occur once more alone.
    qint32 sharedParents = 0;
    Shape shape = Shape::Tree;
    qint32 fanOut = 8; ///< children of an ordinary parent of a Tree, on average; one in fifty has
                       ///< ten times that
    qint32 languages = 2; ///< descriptions of each member: English, French, German, Spanish, ...
    quint64 seed = 1;
    char delimiter = ';'; ///< one that HFM allows; '#' is refused, since "#root" holds it
    Encoding encoding = Encoding::Utf8;
    LineEnd lineEnd = LineEnd::CrLf;
};

/// What was generated.
struct Summary
{
    qint32 members = 0;
    qint32 edges = 0;
    qint32 baseMembers = 0; ///< members without children
    qint32 generations = 0; ///< members on the longest way down from a top member
    qint64 occurrences = 0; ///< nodes of the tree, each shared member under each of its parents
};

/// Writes the application to `out`, which is open for writing, piece by piece: memory grows with
/// the number of edges, not with the size of the text.
/// Throws std::invalid_argument, before anything is written, for a request that cannot be met, and
/// std::runtime_error with the device's own words where it does not take what is written.
Summary generate(const Request &request, QIODevice &out);

} // namespace generator
