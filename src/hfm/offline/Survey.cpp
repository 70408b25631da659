#include "hfm/offline/Survey.h"

#include "hfm/offline/LineReader.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/Syntax.h"

#include <algorithm>
#include <array>
#include <bit>

namespace hfm::offline {

namespace {

/// One bit for each character that may delimit, none for others.
constexpr quint32 delimiterBit(char c)
{
    const size_t at = delimiters.find(c);
    return at == std::string_view::npos ? 0 : quint32(1) << at;
}

/// The bits of all delimiters that a text holds.
quint32 delimitersIn(QByteArrayView text)
{
    static constexpr auto bits = [] {
        std::array<quint32, 256> table = {};
        for (size_t c = 0; c < table.size(); ++c)
            table[c] = delimiterBit(char(c));
        return table;
    }();
    quint32 held = 0;
    for (const char c : text)
        held |= bits[size_t(uchar(c))];
    return held;
}

/// Finds the delimiter, which no file states: by the record of a top-level member, else by the
/// comment that names the columns, else by a member's DefaultParent field.
class DelimiterSearch
{
public:
    void enterSection(QByteArrayView name)
    {
        mInHierarchy = sameWord(name, "HIERARCHIES");
        mInMembers = sameWord(name, "MEMBERS");
    }

    void look(QByteArrayView line)
    {
        if (line.startsWith('\'')) {
            if (!mByComment)
                mByComment = afterLabel(line);
        } else if (mInHierarchy) {
            lookAtEdge(trimmed(line));
        } else if (mInMembers && !mByDefaultParent) {
            mByDefaultParent = beforeDefaultParent(line);
        }
    }

    /// The delimiter stands in every record of a hierarchy, so a first character that another
    /// record does without only begins a label. Where top members seem to stand behind several
    /// that it may be, the comment or the members tell which of them it is.
    char result() const
    {
        const char told = mByComment ? mByComment : mByDefaultParent;
        if (mBeforeTopMembers.contains(told) && isInEveryEdge(told))
            return told;
        for (const char found : mBeforeTopMembers) {
            if (isInEveryEdge(found))
                return found;
        }
        if (told && isInEveryEdge(told))
            return told;
        if (!mBeforeTopMembers.isEmpty())
            return mBeforeTopMembers.front();
        return told ? told : ';';
    }

private:
    bool isInEveryEdge(char delimiter) const
    {
        return (mInEveryEdge & delimiterBit(delimiter)) != 0;
    }

    static char ifDelimiter(QByteArrayView text, qsizetype at)
    {
        return at >= 0 && at < text.size() && mayDelimit(text[at]) ? text[at] : '\0';
    }

    static char afterLabel(QByteArrayView comment)
    {
        constexpr QByteArrayView label = "'Label";
        if (!sameWord(comment.first(std::min(label.size(), comment.size())), label))
            return '\0';
        return ifDelimiter(trimmed(comment.sliced(label.size())), 0);
    }

    /// Before "#root", which is an empty parent written out, stands no delimiter unless that is
    /// '#'.
    static char beforeTopMember(QByteArrayView record)
    {
        if (record.size() > rootLabel.size() &&
            sameWord(record.first(rootLabel.size()), rootLabel)) {
            const char next = trimmed(record.sliced(rootLabel.size())).front();
            if (mayDelimit(next) && next != '#')
                return next;
        }
        return ifDelimiter(record, 0);
    }

    void lookAtEdge(QByteArrayView record)
    {
        if (!mOnlyInEveryEdge || !record.contains(mOnlyInEveryEdge))
            noteDelimitersOfEdge(record);
        const char found = beforeTopMember(record);
        if (found && !mBeforeTopMembers.contains(found))
            mBeforeTopMembers.append(found);
    }

    /// A record that was cut holds no delimiter and tells nothing.
    void noteDelimitersOfEdge(QByteArrayView record)
    {
        const quint32 held = delimitersIn(record);
        if (held == 0)
            return;
        mInEveryEdge &= held;
        mOnlyInEveryEdge =
            std::has_single_bit(mInEveryEdge) ? delimiters[std::countr_zero(mInEveryEdge)] : '\0';
    }

    static char beforeDefaultParent(QByteArrayView record)
    {
        constexpr QByteArrayView name = "DefaultParent=";
        for (qsizetype at = 1; at + name.size() <= record.size(); ++at) {
            const bool begins = record[at] == 'D' || record[at] == 'd';
            if (begins && sameWord(record.sliced(at, name.size()), name)) {
                const QByteArrayView before = trimmed(record.first(at));
                if (const char found = ifDelimiter(before, before.size() - 1))
                    return found;
            }
        }
        return '\0';
    }

    bool mInHierarchy = false;
    bool mInMembers = false;
    quint32 mInEveryEdge = ~quint32(0); ///< the delimiters that every record of a hierarchy holds
    char mOnlyInEveryEdge = '\0';       ///< the one, once there is but one
    QByteArray mBeforeTopMembers;       ///< what records begin with, in order of appearance
    char mByComment = '\0';
    char mByDefaultParent = '\0';
};

class RecordCounter
{
public:
    explicit RecordCounter(Survey &survey) : mSurvey(survey) {}

    void enterSection(const SectionHeader &header)
    {
        constexpr size_t mostSections = 64;
        const QByteArray key = sectionKey(header.name, header.argument);
        const bool isCounted =
            mSurvey.records.size() < mostSections || mSurvey.records.contains(key);
        mCount = isCounted ? &mSurvey.records[key] : nullptr;
    }
    void count()
    {
        if (mCount)
            ++*mCount;
    }

private:
    Survey &mSurvey;
    qint64 *mCount = nullptr;
};

/// Takes from a header what the reading must know beforehand.
void noteHeader(const SectionHeader &header, const LineReader &reader, Survey &survey,
                QByteArray &customOrder)
{
    if (sameWord(header.name, "FILE_FORMAT") && sameWord(header.argument, "ADS"))
        throw ReadingError(reader.fileName(), reader.number(),
                           QStringLiteral("This is a flat file of another product "
                                          "(!FILE_FORMAT=ADS), not of Financial Management."));
    if (sameWord(header.name, "MEMBERS") || sameWord(header.name, "HIERARCHIES"))
        survey.hasMetadata = true;
    else if (sameWord(header.name, "CUSTOM_ORDER") && customOrder.isEmpty())
        customOrder = header.argument.toByteArray();
}

QList<QByteArray> namesIn(QByteArrayView customOrder, char delimiter)
{
    constexpr qsizetype most = 256; // HFM itself stops well before
    QList<QByteArray> names;
    const QList<QByteArrayView> parts = splitNames(customOrder, delimiter);
    for (const QByteArrayView name : parts) {
        if (!name.isEmpty() && names.size() < most)
            names.append(name.toByteArray());
    }
    return names;
}

} // namespace

QByteArray sectionKey(QByteArrayView name, QByteArrayView argument)
{
    return (name.toByteArray() + '=' + argument.toByteArray()).toLower();
}

Survey surveyFile(QIODevice &device, const QString &fileName)
{
    constexpr qint64 startLength = 4096;
    const QByteArray start = device.peek(startLength);
    const EncodingOfStart found = encodingOfStart(start);
    device.skip(found.markLength);

    Survey survey;
    survey.markLength = found.markLength;
    survey.encoding = found.encoding;
    // What is still unknown is single bytes; all that is looked for here is ASCII in either case.
    LineReader reader(device, fileName, found.certain ? found.encoding : Encoding::Utf8);
    Utf8Check utf8;
    if (!found.certain)
        reader.observe([&utf8](QByteArrayView piece) { utf8.feed(piece); });

    RecordCounter counter(survey);
    DelimiterSearch delimiter;
    QByteArray customOrder;
    while (reader.next()) {
        const QByteArrayView line = reader.line();
        if (const auto header = sectionHeader(line)) {
            delimiter.enterSection(header->name);
            counter.enterSection(*header);
            noteHeader(*header, reader, survey, customOrder);
        } else if (!line.isEmpty()) {
            delimiter.look(line);
            counter.count();
        }
    }
    survey.lines = reader.number();
    survey.delimiter = delimiter.result();
    if (!found.certain && utf8.isValid())
        survey.encoding = Encoding::Utf8;
    if (!found.certain)
        customOrder = Transcoder(survey.encoding).toUtf8(customOrder);
    if (!customOrder.isEmpty())
        survey.customOrder = namesIn(customOrder, survey.delimiter);
    return survey;
}

} // namespace hfm::offline
