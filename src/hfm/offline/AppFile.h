#pragma once

#include "hfm/offline/ApplicationDraft.h"

#include <QIODevice>

namespace hfm::offline {

/// Reads a metadata file in APP format into the draft. Fails with ReadingError where the file is
/// no text, cannot be read, is another product's, or holds no metadata. `device` must be open and
/// able to seek. The file's name, for the messages, is the draft's warnings'.
void readMetadataFile(QIODevice &device, ApplicationDraft &draft);

/// Reads an application profile: languages, years, periods and views. Fails with ReadingError where
/// the file is no text or cannot be read.
void readProfileFile(QIODevice &device, ApplicationDraft &draft);

} // namespace hfm::offline
