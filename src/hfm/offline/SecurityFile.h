#pragma once

#include "hfm/offline/ApplicationDraft.h"

#include <QIODevice>

namespace hfm::offline {

/// Reads a security file into the draft. Fails with ReadingError where the file is no text, cannot
/// be read, is another product's, or holds no security; then the draft is as if there were none.
/// `device` must be open and able to seek. The file's name, for the messages, is the draft's
/// warnings'.
void readSecurityFile(QIODevice &device, ApplicationDraft &draft);

} // namespace hfm::offline
