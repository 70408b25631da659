#include "appinfo/SecurityExport.h"

#include "runtime/Counter16.h"

using namespace Qt::StringLiterals;

namespace {

void writeColumn(Worksheet &sheet, qint32 column, const QStringList &lines)
{
    Counter16 row;
    for (const QString &line : lines) {
        ++row;
        sheet.setCell(row.value(), column, line);
    }
}

} // namespace

Prompt SecurityExport::nothingToPrint()
{
    return {u"Send to Excel Error"_s,
            u"Nothing to print to Excel.  Please choose from the security list boxes above."_s,
            Prompt::Icon::Exclamation, Prompt::Buttons::Ok};
}

void SecurityExport::write(Worksheet &sheet, const QStringList &first, const QStringList &second)
{
    writeColumn(sheet, 1, first);
    writeColumn(sheet, 3, second); // column 2 is the gap
}
