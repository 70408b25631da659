#pragma once

#include "hfm/offline/Place.h"

#include <QByteArrayView>
#include <QList>

namespace hfm::offline {

/// Takes the lines of one kind of section into the draft of an application. Records stay valid up
/// to the next call of finish(), the names of columns only during the call.
class Section
{
public:
    virtual ~Section() = default;
    /// A comment before the first record that names the columns; its names are trimmed.
    virtual void readColumns(const QList<QByteArrayView> &) {}
    /// A line that is neither blank nor a comment.
    virtual void readRecord(QByteArrayView line, Place place) = 0;
    /// The section ends, is interrupted by another one, or its last records are about to become
    /// invalid: what is still to be stored is stored. Records may follow.
    virtual void finish() {}
};

} // namespace hfm::offline
