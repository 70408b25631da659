#pragma once

#include "hfm/offline/Encoding.h"

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QString>

#include <map>
#include <optional>

namespace hfm::offline {

/// What must be known of a file in the APP syntax before its records can be read.
struct Survey
{
    Encoding encoding = Encoding::Utf8;
    qsizetype markLength = 0; ///< where the text begins
    char delimiter = ';';
    /// The custom dimensions' own names, in order; nothing where the file does not name them.
    std::optional<QList<QByteArray>> customOrder;
    bool hasMetadata = false; ///< whether there is a section of members or of a hierarchy
    qint64 lines = 0;
    /// How many records the sections of one name and argument have, such as "members=entity". Only
    /// a help for making room: sections beyond the first few dozen are not counted.
    std::map<QByteArray, qint64> records;
};

/// The key of Survey::records.
QByteArray sectionKey(QByteArrayView name, QByteArrayView argument);

/// Looks a file through from its beginning, within bounded memory. `fileName` is for the messages.
/// Fails with ReadingError where the file is no text, cannot be read, or is another product's.
Survey surveyFile(QIODevice &device, const QString &fileName);

} // namespace hfm::offline
