#include "listbuilder/BuilderRules.h"

#include "runtime/RuntimeError.h"

using namespace Qt::Literals::StringLiterals;

QString BuilderRules::applicationPanel(const QString &applicationName)
{
    return u"Application: "_s + applicationName;
}

QString BuilderRules::dimensionCaption(const QString &dimension)
{
    return dimension + u" Dimension"_s;
}

QString BuilderRules::listsCaption(const QString &dimension)
{
    return dimension + u" Lists:"_s;
}

bool BuilderRules::isPickable(const QString &dimension)
{
    return dimension != "ENTITY"_L1;
}

bool BuilderRules::canGenerate(int rows, const QString &listName)
{
    return rows > 0 && !listName.isEmpty();
}

void BuilderRules::resetSyntax(const QString &syntax)
{
    if (!syntax.isEmpty())
        throw RuntimeError(TypeMismatch);
}
