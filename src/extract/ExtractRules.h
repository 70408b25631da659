#pragma once

#include "extract/ExtractBuilder.h"
#include "runtime/Prompts.h"

#include <optional>

/// The decisions of the extract window.
namespace ExtractRules {

/// What the indicator controls hold when an extract is started.
struct Choices
{
    bool useIndicators = false;
    ExtractIndicators typed;
};

/// The indicators of an extract that is started with the delimiter option of that tag, in any
/// letter case; nothing for a tag that is neither "COMMA" nor "TAB". The option decides on no more
/// than this: extracts are always comma-separated.
std::optional<ExtractIndicators> indicatorsFor(const QString &delimiterTag, const Choices &choices);

/// What the user is told when indicatorsFor() gives nothing.
Prompt unknownDelimiter();

/// The text of an extract to show when "Show Header Row" is clicked.
QString textForHeaderRow(const ExtractTexts &texts, bool headerRow);

/// The text to show once an extract is built: the rows, whether or not a header row is wanted. An
/// extract without rows shows its header where one is wanted, so that it can be seen at all.
QString textWhenBuilt(const ExtractTexts &texts, bool headerRow);

QString applicationPanel(const QString &applicationName);
QString dimensionCaption(const QString &dimensionName);

} // namespace ExtractRules
