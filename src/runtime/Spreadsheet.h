#pragma once

#include <QStringView>

#include <memory>

// A spreadsheet program, in the steps of its automation: create the application, add a workbook,
// add a worksheet, write its cells, make the application visible, release it.

/// A worksheet that was added to a workbook.
class Worksheet
{
public:
    virtual ~Worksheet() = default;

    /// Puts a text into a cell; rows and columns are counted from 1. Cells may be written in any
    /// order, and more than once: the last text is the cell's. A leading apostrophe says that what
    /// follows is text whatever it looks like, and is no part of the cell's text. An empty text
    /// leaves the cell empty.
    /// Fails with RuntimeError ApplicationDefinedError where a worksheet has no such cell, and as
    /// the program behind it does, such as with DiskFull.
    virtual void setCell(qint32 row, qint32 column, QStringView text) = 0;
};

class Workbook
{
public:
    virtual ~Workbook() = default;

    /// A further worksheet, empty, behind those that a new workbook has. It is the one that shows
    /// when the workbook opens, and lives as long as the workbook.
    virtual Worksheet &addWorksheet() = 0;

    /// Says that every cell is written; nothing may be written any more. What a program keeps in
    /// memory is complete as it is; a workbook in a file is written here, so that what can fail
    /// fails before the user is told that all is done.
    virtual void complete() = 0;
};

/// A running spreadsheet program. Destroying this object releases it: a workbook that is visible
/// stays open with the user; one that is not and was not completed is gone.
class SpreadsheetApplication
{
public:
    virtual ~SpreadsheetApplication() = default;

    /// A new workbook, which lives as long as the application object.
    virtual Workbook &addWorkbook() = 0;

    /// Shows the workbooks, which are complete, to the user. Where no program can show them it
    /// fails with RuntimeError CannotCreateObject, whose description says where they are.
    virtual void setVisible(bool visible) = 0;
};

class Spreadsheet
{
public:
    virtual ~Spreadsheet() = default;

    /// Starts the program, not yet visible. Fails with RuntimeError CannotCreateObject where there
    /// is none.
    virtual std::unique_ptr<SpreadsheetApplication> createApplication() = 0;
};
