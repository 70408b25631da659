#include "extract/ExtractRules.h"

using namespace Qt::StringLiterals;

namespace ExtractRules {

std::optional<ExtractIndicators> indicatorsFor(const QString &delimiterTag, const Choices &choices)
{
    const QString tag = delimiterTag.toUpper();
    if (tag == u"COMMA")
        return choices.useIndicators ? choices.typed : ExtractIndicators{};
    if (tag == u"TAB")
        return ExtractIndicators{u"Dynamic"_s, u"Store"_s};
    return std::nullopt;
}

Prompt unknownDelimiter()
{
    return {u"Delimeter Option Error"_s,
            u"Unhandled error encountered while setting the Delimeter Option."_s,
            Prompt::Icon::Critical, Prompt::Buttons::Ok};
}

QString textForHeaderRow(const ExtractTexts &texts, bool headerRow)
{
    return headerRow ? texts.rowsWithHeader : texts.rows;
}

QString textWhenBuilt(const ExtractTexts &texts, bool headerRow)
{
    return texts.rows.isEmpty() ? textForHeaderRow(texts, headerRow) : texts.rows;
}

QString applicationPanel(const QString &applicationName)
{
    return u"Application: "_s + applicationName;
}

QString dimensionCaption(const QString &dimensionName)
{
    return dimensionName + u" Dimension"_s;
}

} // namespace ExtractRules
