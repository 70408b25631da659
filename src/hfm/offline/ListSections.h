#pragma once

#include "hfm/offline/DescriptionReader.h"
#include "hfm/offline/Section.h"

namespace hfm::offline {

/// !CURRENCIES: label, scale and two more fields or none, descriptions.
class CurrencySection final : public Section
{
public:
    CurrencySection(ApplicationDraft &draft, char delimiter);
    void readColumns(const QList<QByteArrayView> &columns) override;
    void readRecord(QByteArrayView line, Place place) override;

private:
    ApplicationDraft &mDraft;
    char mDelimiter;
    DescriptionReader mDescriptions;
    // Where these fields stand; -1 for one that the comment does not name.
    qsizetype mLabel = 0;
    qsizetype mScale = 1;
};

/// !CONSOLIDATION_METHODS: label and six more fields, one of which is a comparison that holds a
/// '=' itself, descriptions.
class MethodSection final : public Section
{
public:
    MethodSection(ApplicationDraft &draft, char delimiter);
    void readColumns(const QList<QByteArrayView> &columns) override;
    void readRecord(QByteArrayView line, Place place) override;

private:
    ApplicationDraft &mDraft;
    char mDelimiter;
    DescriptionReader mDescriptions;
    // Where these fields stand; -1 for one that the comment does not name.
    qsizetype mLabel = 0;
    qsizetype mControl = 4; ///< up to which percentage of control the method is used
    qsizetype mShare = 5;   ///< the percentage that is consolidated
    qsizetype mFirstDescription = 7;
};

/// A section of one name a line.
class NameSection final : public Section
{
public:
    NameSection(Names &names, char delimiter) : mNames(names), mDelimiter(delimiter) {}
    void readRecord(QByteArrayView line, Place place) override;

private:
    Names &mNames;
    char mDelimiter;
};

/// !APPLICATION_SETTINGS: the application's default currency.
class SettingsSection final : public Section
{
public:
    explicit SettingsSection(ApplicationDraft &draft) : mDraft(draft) {}
    void readRecord(QByteArrayView line, Place place) override;

private:
    ApplicationDraft &mDraft;
};

} // namespace hfm::offline
