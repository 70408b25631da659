#pragma once

#include "extract/ExtractBuilder.h"
#include "runtime/Prompts.h"

#include <optional>

/// The decisions of the extract window.
namespace ExtractRules {

/// What the window's controls hold when an extract is started.
struct Choices
{
    bool useIndicators = false;
    ExtractIndicators indicators; ///< as typed
};

struct Delimiter
{
    /// Stands for the choice alone: extracts are always comma-separated.
    QString text;
    ExtractIndicators indicators; ///< those that an extract started with this choice uses
};

/// What the delimiter option of that tag means; the tag is in any letter case. Nothing for a tag
/// that is neither "COMMA" nor "TAB".
std::optional<Delimiter> delimiter(const QString &tag, const Choices &choices);

/// What the user is told when delimiter() gives nothing.
Prompt unknownDelimiter();

/// The text of an extract to show when "Show Header Row" is clicked.
QString textForHeaderRow(const ExtractTexts &texts, bool headerRow);

/// The text to show once an extract is built: the rows, whether or not a header row is wanted. An
/// extract without rows shows its header where one is wanted, so that it can be seen at all.
QString textWhenBuilt(const ExtractTexts &texts, bool headerRow);

QString applicationPanel(const QString &applicationName);
QString dimensionCaption(const QString &dimensionName);

} // namespace ExtractRules
