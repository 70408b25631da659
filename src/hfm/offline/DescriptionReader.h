#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Syntax.h"

namespace hfm::offline {

/// Reads the "Language=text" fields at the end of records.
class DescriptionReader
{
public:
    explicit DescriptionReader(ApplicationDraft &draft) : mDraft(draft) {}

    /// What stands for the descriptions from the field `first` to the record's last, put together.
    /// A field that is none is a warning.
    TextRef read(const Fields &fields, qsizetype first, Place place)
    {
        look(fields, first, place, mFound);
        return mDraft.arena->add(mFound.together());
    }

    /// Only puts them together.
    void look(const Fields &fields, qsizetype first, Place place, Descriptions &found);

private:
    qint32 languageOf(QByteArrayView name, qsizetype position, Place place);

    ApplicationDraft &mDraft;
    Descriptions mFound;
    std::vector<qint32> mUsual; ///< the languages of the last record's descriptions
};

} // namespace hfm::offline
