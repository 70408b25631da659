#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Section.h"
#include "hfm/offline/XmlRecord.h"

#include <array>
#include <map>

namespace hfm::offline {

/// What the entries of a MISC element are, by its name.
enum class XmlList { Currencies, Methods, Settings, CustomOrder, Languages };

/// The list of that name, in any letter case and with or without '_' between its words; nothing
/// where the client reads none of that name.
std::optional<XmlList> xmlListNamed(QByteArrayView name);

/// Adds the names of custom dimensions that an entry of the custom order holds, as many as HFM
/// could have.
void addCustomNames(const XmlRecord &entry, QList<QByteArray> &names);

/// Takes records of an XML file into the draft of an application, by way of the sections of the
/// APP format, so that the two formats cannot be read differently.
class XmlSections
{
public:
    explicit XmlSections(ApplicationDraft &draft) : mDraft(draft) {}

    /// `dimension` and `list` are those around the record, as far as there are any.
    void read(std::optional<DimensionKind> dimension, std::optional<XmlList> list,
              const XmlRecord &record);
    /// Called after the last record.
    void finish() { enter(nullptr); }

private:
    /// The records of one dimension's members, whose attributes are told by the order in which
    /// their names were met.
    struct Members
    {
        std::unique_ptr<Section> section;
        QList<QByteArray> columns;
    };

    void readMember(DimensionKind dimension, const XmlRecord &record);
    void readNode(DimensionKind dimension, const XmlRecord &record);
    void readEntry(XmlList list, const XmlRecord &record);
    void readSetting(const XmlRecord &record);
    void noteColumns(Members &members, const XmlRecord &record);
    Section &listSection(XmlList list);
    void beginLine(QByteArrayView first);
    void addField(QByteArrayView field);
    void addField(QByteArrayView name, QByteArrayView value);
    void addDescriptions(const XmlRecord &record);
    QByteArray &line() { return mLines[mLineCount]; }
    void hand(Section &section);
    void enter(Section *section);

    ApplicationDraft &mDraft;
    std::map<DimensionKind, Members> mMembers;
    std::map<DimensionKind, std::unique_ptr<Section>> mNodes;
    std::map<XmlList, std::unique_ptr<Section>> mLists;
    Section *mSection = nullptr; ///< that read the last record
    /// Records as lines of the section, which it may look at until it was told to finish.
    std::array<QByteArray, 64> mLines;
    size_t mLineCount = 0; ///< how many of them the section has
    Place mPlace;
};

} // namespace hfm::offline
