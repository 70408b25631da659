#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Spreadsheet.h"

#include <QMap>
#include <QStringList>

#include <optional>

/// A spreadsheet program that only notes what it is told.
class FakeSpreadsheet final : public Spreadsheet
{
public:
    /// Every step there was, in order: "create Excel.Application", "add workbook",
    /// "add worksheet", "cells(2, 1) = text" for each cell written, "complete", "visible",
    /// "release".
    QStringList steps;
    /// The step that fails, and with what, where it is set. A failing step is noted too.
    QString failingStep;
    std::optional<RuntimeError> failure;

    std::unique_ptr<SpreadsheetApplication> createApplication() override
    {
        note(QStringLiteral("create Excel.Application"));
        mCells.clear();
        return std::make_unique<Application>(*this);
    }

    /// The texts of the last workbook's cells as they stand in a sheet, an apostrophe in front
    /// left out: one string for each row, its cells separated by '|' up to the last that is not
    /// empty.
    QStringList rows() const
    {
        QStringList rows;
        for (auto cell = mCells.begin(); cell != mCells.end(); ++cell) {
            if (cell.value().isEmpty())
                continue;
            const auto [row, column] = cell.key();
            while (rows.size() < row)
                rows.append(QString());
            rows.last() +=
                QString(column - 1 - rows.last().count(QLatin1Char('|')), QLatin1Char('|')) +
                cell.value();
        }
        return rows;
    }
    /// Of `steps`, those that write cells, without the "cells".
    QStringList writes() const
    {
        QStringList writes;
        for (const QString &step : steps)
            if (step.startsWith(QLatin1StringView("cells")))
                writes.append(step.sliced(5));
        return writes;
    }
    /// Of `steps`, all others.
    QStringList stepsButCells() const
    {
        QStringList others = steps;
        others.removeIf(
            [](const QString &step) { return step.startsWith(QLatin1StringView("cells")); });
        return others;
    }

private:
    class Application final : public SpreadsheetApplication, public Workbook, public Worksheet
    {
    public:
        explicit Application(FakeSpreadsheet &program) : mProgram(program) {}
        ~Application() override { mProgram.steps.append(QStringLiteral("release")); }
        Q_DISABLE_COPY_MOVE(Application)

        Workbook &addWorkbook() override
        {
            mProgram.note(QStringLiteral("add workbook"));
            return *this;
        }
        Worksheet &addWorksheet() override
        {
            mProgram.note(QStringLiteral("add worksheet"));
            return *this;
        }
        void setCell(qint32 row, qint32 column, QStringView text) override
        {
            mProgram.note(QStringLiteral("cells(%1, %2) = ").arg(row).arg(column) +
                          text.toString());
            const bool isMarked = text.startsWith(QLatin1Char('\''));
            mProgram.mCells[{row, column}] = text.sliced(isMarked ? 1 : 0).toString();
        }
        void complete() override { mProgram.note(QStringLiteral("complete")); }
        void setVisible(bool visible) override
        {
            mProgram.note(visible ? QStringLiteral("visible") : QStringLiteral("hidden"));
        }

    private:
        FakeSpreadsheet &mProgram;
    };

    void note(const QString &step)
    {
        steps.append(step);
        if (failure && step.startsWith(failingStep))
            throw *failure;
    }

    QMap<std::pair<qint32, qint32>, QString> mCells;
};
