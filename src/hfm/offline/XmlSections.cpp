#include "hfm/offline/XmlSections.h"

#include "hfm/offline/HierarchySection.h"
#include "hfm/offline/ListSections.h"
#include "hfm/offline/MemberSection.h"
#include "hfm/offline/Syntax.h"

#include <algorithm>

namespace hfm::offline {

namespace {

constexpr qsizetype mostColumns = 1000; // HFM's accounts have some dozens

QList<QByteArrayView> views(const QList<QByteArray> &texts)
{
    return QList<QByteArrayView>(texts.begin(), texts.end());
}

} // namespace

std::optional<XmlList> xmlListNamed(QByteArrayView name)
{
    QByteArray plain = name.toByteArray().toLower();
    plain.replace("_", "").replace(" ", "");
    if (plain == "currencies")
        return XmlList::Currencies;
    if (plain == "consolidationmethods" || plain == "consolmethods")
        return XmlList::Methods;
    if (plain == "applicationsettings" || plain == "appsettings")
        return XmlList::Settings;
    if (plain == "customorder")
        return XmlList::CustomOrder;
    if (plain == "languages")
        return XmlList::Languages;
    return std::nullopt;
}

void addCustomNames(const XmlRecord &entry, QList<QByteArray> &names)
{
    constexpr qsizetype most = 256; // HFM itself stops well before
    const QList<QByteArrayView> parts = splitNames(entry.label, ';');
    for (const QByteArrayView name : parts) {
        if (!name.isEmpty() && names.size() < most)
            names.append(name.toByteArray());
    }
}

void XmlSections::read(std::optional<DimensionKind> dimension, std::optional<XmlList> list,
                       const XmlRecord &record)
{
    mPlace = Place(SourceFile::Metadata, record.line);
    if (record.kind == XmlRecordKind::Entry) {
        if (list)
            readEntry(*list, record);
        return;
    }
    if (!dimension) {
        const QByteArray &label =
            record.kind == XmlRecordKind::Member ? record.label : record.child;
        mDraft.warnings.add(mPlace, [&] {
            return QStringLiteral("%1 stands in no dimension; it is left out.").arg(quoted(label));
        });
    } else if (record.kind == XmlRecordKind::Member) {
        readMember(*dimension, record);
    } else {
        readNode(*dimension, record);
    }
}

void XmlSections::readMember(DimensionKind dimension, const XmlRecord &record)
{
    Members &members = mMembers[dimension];
    if (!members.section) {
        members.section = std::make_unique<MemberSection>(mDraft, dimension, xmlDelimiter);
        members.columns = {"Label", "DefaultParent"};
        members.section->readColumns(views(members.columns));
    }
    enter(members.section.get());
    noteColumns(members, record);
    beginLine(record.label);
    for (qsizetype i = 1; i < members.columns.size() - 1; ++i)
        addField(record.attribute(members.columns[i]));
    if (record.defaultParent)
        addField("DefaultParent", *record.defaultParent);
    addDescriptions(record);
    hand(*members.section);
}

/// Adds the names of attributes that were not met before to the section's columns.
void XmlSections::noteColumns(Members &members, const XmlRecord &record)
{
    const qsizetype before = members.columns.size();
    for (const XmlRecord::Named &attribute : record.attributes) {
        const bool isKnown =
            std::any_of(members.columns.begin(), members.columns.end(),
                        [&](const QByteArray &column) { return sameWord(column, attribute.name); });
        if (!isKnown && !attribute.name.isEmpty() && members.columns.size() < mostColumns)
            members.columns.insert(members.columns.size() - 1, attribute.name);
    }
    if (members.columns.size() == before)
        return;
    enter(nullptr);
    enter(members.section.get());
    members.section->readColumns(views(members.columns));
}

void XmlSections::readNode(DimensionKind dimension, const XmlRecord &record)
{
    std::unique_ptr<Section> &nodes = mNodes[dimension];
    if (!nodes)
        nodes = std::make_unique<HierarchySection>(mDraft, dimension, xmlDelimiter);
    enter(nodes.get());
    beginLine(record.parent);
    addField(record.child);
    if (isCustom(dimension))
        addField(record.attribute("AggrWeight"));
    hand(*nodes);
}

void XmlSections::readEntry(XmlList list, const XmlRecord &record)
{
    if (list == XmlList::CustomOrder)
        return;
    Section &section = listSection(list);
    enter(&section);
    if (list == XmlList::Settings)
        return readSetting(record);
    beginLine(record.label);
    if (list == XmlList::Currencies) {
        addField(record.attribute("Scale"));
    } else if (list == XmlList::Methods) {
        addField(record.attribute("ToPercentControl"));
        addField(record.attribute("PercentConsol"));
    }
    if (list != XmlList::Languages)
        addDescriptions(record);
    hand(section);
}

/// A setting is an attribute of its own name, or an entry of its name with a value.
void XmlSections::readSetting(const XmlRecord &record)
{
    Section &section = listSection(XmlList::Settings);
    for (const XmlRecord::Named &attribute : record.attributes) {
        const bool isValue = sameWord(attribute.name, "Value");
        enter(&section);
        line() = (isValue ? record.label : attribute.name) + '=' + attribute.value;
        hand(section);
    }
}

Section &XmlSections::listSection(XmlList list)
{
    std::unique_ptr<Section> &section = mLists[list];
    if (section)
        return *section;
    switch (list) {
    case XmlList::Currencies:
        section = std::make_unique<CurrencySection>(mDraft, xmlDelimiter);
        break;
    case XmlList::Methods:
        section = std::make_unique<MethodSection>(mDraft, xmlDelimiter);
        section->readColumns({"Label", "ToPercentControl", "PercentConsol", "Descriptions"});
        break;
    case XmlList::Settings:
        section = std::make_unique<SettingsSection>(mDraft);
        break;
    case XmlList::CustomOrder:
    case XmlList::Languages:
        section = std::make_unique<NameSection>(mDraft.listedLanguages, xmlDelimiter);
        break;
    }
    return *section;
}

/// A section gets no empty lines, so an empty field is written as a blank.
void XmlSections::beginLine(QByteArrayView first)
{
    line() = first.isEmpty() ? QByteArray(" ") : first.toByteArray();
}

void XmlSections::addField(QByteArrayView field)
{
    line() += xmlDelimiter;
    line() += field;
}

void XmlSections::addField(QByteArrayView name, QByteArrayView value)
{
    addField(name);
    line() += '=';
    line() += value;
}

void XmlSections::addDescriptions(const XmlRecord &record)
{
    for (const XmlRecord::Named &description : record.descriptions)
        addField(description.name, description.value);
}

/// Lines stay as they are until the section was told to finish.
void XmlSections::hand(Section &section)
{
    section.readRecord(line(), mPlace);
    if (++mLineCount == mLines.size())
        enter(nullptr);
}

void XmlSections::enter(Section *section)
{
    if (mSection && mSection != section) {
        mSection->finish();
        mLineCount = 0;
    }
    mSection = section;
}

} // namespace hfm::offline
