#include "shell/SpreadsheetExport.h"

using namespace Qt::StringLiterals;

void SpreadsheetExport::run(Services &services, const std::function<void(Worksheet &)> &write)
{
    const auto application = services.spreadsheet.createApplication();
    Workbook &workbook = application->addWorkbook();
    write(workbook.addWorksheet());
    workbook.complete();
    services.prompts.ask(complete());
    if (!services.program.isEnding())
        application->setVisible(true);
}

Prompt SpreadsheetExport::complete()
{
    return {u"Excel Export"_s, u"Excel Export Complete.\r\n\r\nPress Ok to view Excel file."_s,
            Prompt::Icon::Information, Prompt::Buttons::Ok};
}
