#pragma once

#include "hfm/offline/ApplicationDraft.h"

#include <QIODevice>

namespace hfm::offline {

/// Reads a metadata file in XML format into the draft, as readMetadataFile() one in APP format.
/// Fails with ReadingError where the file is no XML, cannot be read, or holds no metadata.
///
/// HFM publishes no schema: nothing is asked of the elements around the records but that the
/// nearest one whose Name is a dimension's tells the dimension.
void readXmlMetadataFile(QIODevice &device, ApplicationDraft &draft);

} // namespace hfm::offline
