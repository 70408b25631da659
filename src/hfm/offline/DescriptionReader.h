#pragma once

#include "hfm/offline/ApplicationDraft.h"
#include "hfm/offline/Syntax.h"

namespace hfm::offline {

/// Reads the "Language=text" fields at the end of records.
class DescriptionReader
{
public:
    explicit DescriptionReader(ApplicationDraft &draft) : mDraft(draft) {}

    /// Those from the field `first` to the record's last. A field that is none is a warning.
    DescriptionRange read(const Fields &fields, qsizetype first, Place place);

private:
    qint32 languageOf(QByteArrayView name, qsizetype position, Place place);

    ApplicationDraft &mDraft;
    std::vector<qint32> mUsual; ///< the languages of the last record's descriptions
};

} // namespace hfm::offline
