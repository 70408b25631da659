#include "hfm/offline/ListSections.h"

#include "hfm/offline/FieldValues.h"

namespace hfm::offline {

namespace {

/// Adds what a record names; the first record of a name holds.
void addListed(ListedNames &listed, QByteArrayView label, DescriptionRange descriptions,
               ApplicationDraft &draft, Place place)
{
    const qint32 index = listed.names.mention(label, place);
    if (index == qint32(listed.descriptions.size())) {
        listed.descriptions.push_back(descriptions);
        return;
    }
    draft.warnings.add(place, [&] {
        if (index < 0)
            return QStringLiteral("The record has no label; it is left out.");
        return QStringLiteral("%1 has a record already; this one is left out.").arg(quoted(label));
    });
}

bool isComparison(QByteArrayView field)
{
    return field.startsWith('<') || field.startsWith('>') || field.startsWith('=');
}

/// The last of the first `count` fields that is not empty. The label counts as filled.
qsizetype lastFilled(const Fields &fields, qsizetype count)
{
    qsizetype last = count - 1;
    while (last > 0 && fields.at(last).isEmpty())
        --last;
    return last;
}

/// What HFM takes for a share besides a number: the one that is calculated for the entity.
bool isCalculatedShare(QByteArrayView field)
{
    return sameWord(field, "POWN") || sameWord(field, "POWNMIN");
}

void warnOfNumber(ApplicationDraft &draft, QByteArrayView field, Place place)
{
    if (!isNumber(field))
        draft.warnings.add(place,
                           [&] { return QStringLiteral("%1 is no number.").arg(quoted(field)); });
}

} // namespace

CurrencySection::CurrencySection(ApplicationDraft &draft, char delimiter)
    : mDraft(draft), mDelimiter(delimiter), mDescriptions(draft)
{
}

void CurrencySection::readRecord(QByteArrayView line, Place place)
{
    constexpr qsizetype mostFields = 4;
    Fields fields;
    fields.split(line, mDelimiter);
    qsizetype first = 1;
    while (first < fields.count() && !fields.at(first).contains('='))
        ++first;
    if (lastFilled(fields, first) >= mostFields)
        mDraft.warnings.add(place, [&] {
            return QStringLiteral("The record of %1 has %2 fields where %3 are known; the last "
                                  "ones are left out.")
                .arg(quoted(fields.at(0)), QString::number(first), QString::number(mostFields));
        });
    if (first > 1)
        warnOfNumber(mDraft, fields.at(1), place);
    addListed(mDraft.currencies, fields.at(0), mDescriptions.read(fields, first, place), mDraft,
              place);
}

MethodSection::MethodSection(ApplicationDraft &draft, char delimiter)
    : mDraft(draft), mDelimiter(delimiter), mDescriptions(draft)
{
}

void MethodSection::readColumns(const QList<QByteArrayView> &columns)
{
    mControl = -1;
    mShare = -1;
    for (qsizetype i = 1; i < columns.size(); ++i) {
        if (sameWord(columns[i], "Descriptions"))
            mFirstDescription = i;
        else if (sameWord(columns[i], "ToPercentControl"))
            mControl = i;
        else if (sameWord(columns[i], "PercentConsol"))
            mShare = i;
    }
}

void MethodSection::readRecord(QByteArrayView line, Place place)
{
    Fields fields;
    fields.split(line, mDelimiter);
    qsizetype first = 1;
    while (first < std::min(mFirstDescription, fields.count()) &&
           (!fields.at(first).contains('=') || isComparison(fields.at(first))))
        ++first;
    if (mControl >= 0 && mControl < first)
        warnOfNumber(mDraft, fields.at(mControl), place);
    if (mShare >= 0 && mShare < first && !isCalculatedShare(fields.at(mShare)))
        warnOfNumber(mDraft, fields.at(mShare), place);
    addListed(mDraft.methods, fields.at(0), mDescriptions.read(fields, first, place), mDraft,
              place);
}

void NameSection::readRecord(QByteArrayView line, Place place)
{
    mNames.mention(trimmed(line), place);
}

void SettingsSection::readRecord(QByteArrayView line, Place place)
{
    const auto setting = assignment(line);
    if (setting && sameWord(setting->name, "DefaultCurrency") &&
        mDraft.defaultCurrency.count() == 0)
        mDraft.defaultCurrency.mention(setting->value, place);
}

} // namespace hfm::offline
