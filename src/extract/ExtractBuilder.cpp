#include "extract/ExtractBuilder.h"

#include "runtime/Counter16.h"

#include <QStringBuilder>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' '; });
}

/// What follows a child's description up to the end of its row.
QString endOfRow(const QString &indicator)
{
    if (isBlank(indicator))
        return u"\"\r\n"_s;
    return u"\",\""_s + indicator + u"\"\r\n"_s;
}

QString headerLine(const ExtractIndicators &indicators)
{
    QString line = u"PARENT_LABEL,PARENT_DESCRIPTION,CHILD_LABEL,CHILD_DESCRIPTION"_s;
    // With a parent indicator alone the line ends in a comma and no name: deliberate.
    if (!isBlank(indicators.parent))
        line += u","_s;
    if (!isBlank(indicators.base))
        line += isBlank(indicators.parent) ? u",INDICATOR"_s : u"INDICATOR"_s;
    return line + u"\r\n"_s;
}

/// A parent whose children are being written.
struct OpenParent
{
    QList<hfm::MemberId> children;
    Counter16 count;
    qsizetype next;
    QString startOfRow; ///< its own fields and the quote that opens the child's label
};

/// The walk keeps its own stack: hierarchies can be deeper than the thread's.
class RowWriter
{
public:
    RowWriter(hfm::Dimension &dimension, qint16 language, const ExtractIndicators &indicators,
              qsizetype longest)
        : mDimension(dimension), mLanguage(language), mEndOfParentRow(endOfRow(indicators.parent)),
          mEndOfBaseRow(endOfRow(indicators.base)), mLongest(longest)
    {
    }

    QString write()
    {
        openParent(hfm::rootMember, {}, {});
        while (!mOpen.empty()) {
            OpenParent &parent = mOpen.back();
            if (parent.next < parent.count.value())
                writeChild(parent);
            else
                mOpen.pop_back();
        }
        return std::move(mText);
    }

private:
    void writeChild(OpenParent &parent)
    {
        const hfm::MemberId child = parent.children.at(parent.next++);
        const QString label = mDimension.GetMemberLabel(child);
        const QString description = mDimension.GetMemberDescription(child, mLanguage);
        const bool hasChildren = mDimension.GetHasChildren(child);
        appendRow(parent.startOfRow, label, description,
                  hasChildren ? mEndOfParentRow : mEndOfBaseRow);
        openParent(child, label, description); // invalidates `parent`
    }

    void appendRow(const QString &start, const QString &label, const QString &description,
                   const QString &end)
    {
        mText += start % label % mBetween % description % end;
        if (mText.size() > mLongest)
            throw RuntimeError(OutOfStringSpace);
    }

    void openParent(hfm::MemberId id, const QString &label, const QString &description)
    {
        QList<hfm::MemberId> children = mDimension.EnumChildMembers(hfm::allChildren, id);
        if (children.isEmpty())
            return;
        const Counter16 count(children.size());
        mOpen.push_back(
            {std::move(children), count, 0, u'"' % label % mBetween % description % u"\",\""_s});
    }

    hfm::Dimension &mDimension;
    const qint16 mLanguage;
    const QString mBetween = u"\",\""_s; ///< from one field to the next
    const QString mEndOfParentRow;
    const QString mEndOfBaseRow;
    const qsizetype mLongest;
    QString mText;
    std::vector<OpenParent> mOpen;
};

} // namespace

ExtractTexts buildExtract(hfm::Dimension &dimension, qint16 language,
                          const ExtractIndicators &indicators, qsizetype longest)
{
    const QString header = headerLine(indicators);
    ExtractTexts texts;
    texts.rows = RowWriter(dimension, language, indicators, longest - header.size()).write();
    texts.rowsWithHeader = header + texts.rows;
    return texts;
}
