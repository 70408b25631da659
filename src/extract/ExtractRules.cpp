#include "extract/ExtractRules.h"

using namespace Qt::StringLiterals;

namespace ExtractRules {

std::optional<Delimiter> delimiter(const QString &tag, const Choices &choices)
{
    const QString upper = tag.toUpper();
    if (upper == u"COMMA")
        return Delimiter{u","_s, choices.useIndicators ? choices.indicators : ExtractIndicators{}};
    if (upper == u"TAB")
        return Delimiter{u"\t"_s, {u"Dynamic"_s, u"Store"_s}};
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
