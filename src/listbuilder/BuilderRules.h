#pragma once

#include <QString>

/// The builder window's texts and small decisions. `dimension` is the dimension's name in upper
/// case.
namespace BuilderRules {

/// "Application: " and the name.
QString applicationPanel(const QString &applicationName);
/// "ACCOUNT Dimension"
QString dimensionCaption(const QString &dimension);
/// "ACCOUNT Lists:"
QString listsCaption(const QString &dimension);

/// Whether members of the dimension can be picked. Entities cannot: a list of them names each with
/// its parent, which these lists do not.
bool isPickable(const QString &dimension);

/// Whether a list of so many rows can be generated under that name. A name of blanks is one.
bool canGenerate(int rows, const QString &listName);

/// Resets the script that stands in its text box. An empty one needs none. Any other fails with
/// RuntimeError TypeMismatch before anything is asked or lost: the question is put with its title
/// where the box's style belongs, and the title is no number.
void resetSyntax(const QString &syntax);

} // namespace BuilderRules
