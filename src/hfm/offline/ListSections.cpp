#include "hfm/offline/ListSections.h"

#include "hfm/offline/FieldValues.h"
#include "hfm/offline/SystemMembers.h"

namespace hfm::offline {

namespace {

/// Adds what a record names; the first record of a name holds.
void addListed(ListedNames &listed, QByteArrayView label, TextRef descriptions,
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

/// -1 where there is no such column.
qsizetype indexOfColumn(const QList<QByteArrayView> &columns, QByteArrayView name)
{
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (sameWord(columns[i], name))
            return i;
    }
    return -1;
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

void CurrencySection::readColumns(const QList<QByteArrayView> &columns)
{
    mLabel = indexOfColumn(columns, "Label");
    mScale = indexOfColumn(columns, "Scale");
}

void CurrencySection::readRecord(QByteArrayView line, Place place)
{
    constexpr qsizetype mostFields = 4;
    Fields fields;
    fields.split(line, mDelimiter);
    qsizetype first = 1;
    while (first < fields.count() && !fields.at(first).contains('='))
        ++first;
    const QByteArrayView label = fields.at(mLabel);
    if (lastFilled(fields, first) >= mostFields)
        mDraft.warnings.add(place, [&] {
            return QStringLiteral("The record of %1 has %2 fields where %3 are known; the last "
                                  "ones are left out.")
                .arg(quoted(label), QString::number(first), QString::number(mostFields));
        });
    if (mScale >= 0 && mScale < first)
        warnOfNumber(mDraft, fields.at(mScale), place);
    // It stands for no currency, where a file lists it as well.
    if (sameLabel(label, noneLabel))
        return;
    addListed(mDraft.currencies, label, mDescriptions.read(fields, first, place), mDraft, place);
}

MethodSection::MethodSection(ApplicationDraft &draft, char delimiter)
    : mDraft(draft), mDelimiter(delimiter), mDescriptions(draft)
{
}

void MethodSection::readColumns(const QList<QByteArrayView> &columns)
{
    mLabel = indexOfColumn(columns, "Label");
    mControl = indexOfColumn(columns, "ToPercentControl");
    mShare = indexOfColumn(columns, "PercentConsol");
    if (const qsizetype descriptions = indexOfColumn(columns, "Descriptions"); descriptions > 0)
        mFirstDescription = descriptions;
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
    addListed(mDraft.methods, fields.at(mLabel), mDescriptions.read(fields, first, place), mDraft,
              place);
}

/// A delimiter at the line's end makes no part of the name.
void NameSection::readRecord(QByteArrayView line, Place place)
{
    QByteArrayView name = trimmed(line);
    while (name.endsWith(mDelimiter))
        name = trimmed(name.chopped(1));
    mNames.mention(name, place);
}

void SettingsSection::readRecord(QByteArrayView line, Place place)
{
    const auto setting = assignment(line);
    if (setting && sameWord(setting->name, "DefaultCurrency") &&
        mDraft.defaultCurrency.count() == 0)
        mDraft.defaultCurrency.mention(setting->value, place);
}

} // namespace hfm::offline
