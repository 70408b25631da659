#pragma once

#include <QByteArrayView>
#include <QList>

#include <optional>
#include <string_view>
#include <vector>

/// The small pieces of the APP syntax that HFM's metadata files are written in. All text is UTF-8;
/// the characters that mean something are ASCII.
namespace hfm::offline {

/// Without the blanks and tabs around it.
inline QByteArrayView trimmed(QByteArrayView text)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    const char *begin = text.data();
    const char *end = begin + text.size();
    while (begin != end && isBlank(*begin))
        ++begin;
    while (begin != end && isBlank(end[-1]))
        --end;
    return {begin, end - begin};
}

/// Whether the two are the same but for the case of ASCII letters.
inline bool sameWord(QByteArrayView left, QByteArrayView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// The characters that HFM lets a file's writer choose a delimiter from.
inline constexpr std::string_view delimiters = ",~@$%^&|:;?\\#";
bool mayDelimit(char c);

/// A line that begins a section: "!NAME" or "!NAME=argument".
struct SectionHeader
{
    QByteArrayView name;
    QByteArrayView argument; ///< empty where there is none
};

/// Nothing where the line begins no section.
std::optional<SectionHeader> sectionHeader(QByteArrayView line);

/// What a comment that names columns is split into, and the argument of !CUSTOM_ORDER: split at
/// the file's delimiter, where that does not occur at ';', else at ','. Trimmed.
QList<QByteArrayView> splitNames(QByteArrayView text, char delimiter);

/// The parts of a "Language=text" or "Name=value" field or line, split at its first '='. Trimmed.
struct Assignment
{
    QByteArrayView name;
    QByteArrayView value;
};

/// Nothing where there is no '='.
std::optional<Assignment> assignment(QByteArrayView field);

/// The fields of one record, trimmed.
class Fields
{
public:
    /// Beyond this many a line is no record; the rest of it is not split.
    static constexpr qsizetype mostFields = 1 << 16;

    void split(QByteArrayView record, char delimiter);

    /// Whether there are more than mostFields.
    bool isCut() const { return mCut; }

    qsizetype count() const { return qsizetype(mFields.size()); }
    /// Empty where the record has fewer fields.
    QByteArrayView at(qsizetype index) const
    {
        return index < count() ? mFields[size_t(index)] : QByteArrayView();
    }
    /// The index of the field that begins with "DefaultParent=", in any letter case; -1 where there
    /// is none.
    qsizetype defaultParentIndex() const;

private:
    std::vector<QByteArrayView> mFields;
    bool mCut = false;
};

/// How HFM writes the parent of a top-level member.
inline constexpr QByteArrayView rootLabel = "#root";

} // namespace hfm::offline
