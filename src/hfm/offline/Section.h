#pragma once

#include "hfm/offline/Place.h"

#include <QByteArrayView>
#include <QList>

namespace hfm::offline {

/// Takes the lines of one kind of section into the draft of an application. Lines are not valid any
/// more when the call is over.
class Section
{
public:
    virtual ~Section() = default;
    /// A comment before the first record that names the columns; its names are trimmed.
    virtual void readColumns(const QList<QByteArrayView> &) {}
    /// A line that is neither blank nor a comment.
    virtual void readRecord(QByteArrayView line, Place place) = 0;
    /// The section ends, or is interrupted by another one.
    virtual void finish() {}
};

} // namespace hfm::offline
