#pragma once

#include <QByteArray>

namespace generator {

/// The name of the language at a 0-based position: "English", "French", ..., later ones numbered.
QByteArray languageName(qint32 language);

/// A description such as "Dairy Lyon 1234", in UTF-8, the same for the same number and seed. As in
/// a real application most are distinct, and none holds a character that can be a delimiter.
QByteArray description(qint32 member, qint32 language, quint64 seed);

} // namespace generator
