#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Syntax.h"

namespace hfm::offline {

/// Reads the "Language=text" fields at the end of records.
class DescriptionReader
{
public:
    explicit DescriptionReader(ApplicationDraft &draft) : mDraft(draft) {}

    /// Descriptions that were looked at and not yet stored. Their texts are those of the fields.
    struct One
    {
        qint32 language;
        TextPool::Key text;
    };
    using Found = std::vector<One>;

    /// Those from the field `first` to the record's last. A field that is none is a warning.
    DescriptionRange read(const Fields &fields, qsizetype first, Place place)
    {
        look(fields, first, place, mFound);
        return store(mFound);
    }

    /// The same in two steps, between which what is needed is fetched from memory.
    void look(const Fields &fields, qsizetype first, Place place, Found &found);
    DescriptionRange store(const Found &found);

private:
    qint32 languageOf(QByteArrayView name, qsizetype position, Place place);

    ApplicationDraft &mDraft;
    Found mFound;
    std::vector<qint32> mUsual; ///< the languages of the last record's descriptions
};

} // namespace hfm::offline
