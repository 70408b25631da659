#pragma once

#include "runtime/Spreadsheet.h"

/// For windows that export nothing.
class NoSpreadsheet final : public Spreadsheet
{
public:
    std::unique_ptr<SpreadsheetApplication> createApplication() override { return {}; }
};
