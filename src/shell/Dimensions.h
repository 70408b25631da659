#pragma once

#include "shell/modGlobal.h"

#include <QStringList>

/// The twelve dimensions as the main window offers them, and what follows from choosing one.
namespace Dimensions {

/// The names in the order of the list.
QStringList names();

enum class Choice {
    Nothing, ///< the text was empty
    Set,
    Unknown, ///< the text is no dimension's name, in any letter case
};

/// Makes the dimension that `text` names the current one (gDimension, gDimensionName). Unless the
/// answer is Set, nothing has changed. Fails with RuntimeError ObjectVariableNotSet when there is
/// no metadata yet, and as the metadata's accessor fails.
Choice choose(modGlobal &state, const QString &text);

/// What is said of a text that names no dimension.
QString unableToSet(const QString &text);

/// Which tools a dimension is good for.
struct Tools
{
    bool extract = false;
    bool viewer = false;
    bool memberListBuilder = false;

    friend bool operator==(const Tools &, const Tools &) = default;
};

/// The tools that are enabled by `flag` while `dimensionName` is the current dimension's name.
Tools enabledTools(bool flag, const QString &dimensionName);

/// Whether the member list builder opens; the Entity dimension has no static lists to build.
bool opensMemberListBuilder(const QString &dimensionName);

} // namespace Dimensions
