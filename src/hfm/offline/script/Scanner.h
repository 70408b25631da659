#pragma once

#include "hfm/offline/script/Tokens.h"

namespace hfm::offline::script {

/// Splits a script into its words. Lines end with CR LF, LF or CR. Fails with ScriptError where
/// something stands there that no script can hold.
Tokens scan(QStringView text);

} // namespace hfm::offline::script
