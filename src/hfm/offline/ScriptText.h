#pragma once

#include <QByteArrayView>
#include <QString>

namespace hfm::offline {

/// The text of a member list file: UTF-16 or UTF-8 as a byte-order mark or its bytes tell, else
/// Windows-1252.
QString scriptText(QByteArrayView content);

} // namespace hfm::offline
