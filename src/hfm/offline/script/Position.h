#pragma once

#include <QtGlobal>

namespace hfm::offline::script {

/// A place in a script; both count from 1, columns in UTF-16 units.
struct Position
{
    qint32 line = 1;
    qint32 column = 1;
};

} // namespace hfm::offline::script
