#include "hfm/offline/FieldValues.h"

#include "hfm/offline/MemberRecords.h"
#include "hfm/offline/Syntax.h"

#include <charconv>

namespace hfm::offline {

std::optional<bool> flagValue(QByteArrayView text)
{
    if (text.isEmpty())
        return false;
    if (text.size() == 1 && (text[0] == 'Y' || text[0] == 'y'))
        return true;
    if (text.size() == 1 && (text[0] == 'N' || text[0] == 'n'))
        return false;
    return std::nullopt;
}

qint8 accountTypeCode(QByteArrayView text)
{
    struct Type
    {
        QByteArrayView name;
        qint8 code;
    };
    // INCOME is what releases before 4.1 call REVENUE.
    static constexpr Type types[] = {
        {"REVENUE", 0},      {"INCOME", 0},
        {"EXPENSE", 1},      {"ASSET", 2},
        {"LIABILITY", 3},    {"BALANCE", 4},
        {"FLOW", 5},         {"NONFINANCIAL", 6},
        {"CURRENCYRATE", 7}, {"SYSTEM", 8},
        {"TEXT", 9},         {"GROUPLABEL", 10},
        {"DYNAMIC", 12},     {"BALANCERECURRING", 11},
    };
    for (const Type &type : types) {
        if (sameWord(text, type.name))
            return type.code;
    }
    return unknownAccountType;
}

WholeNumber wholeNumber(QByteArrayView text)
{
    WholeNumber number;
    if (text.isEmpty())
        return number;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number.value);
    number.isWhole = error == std::errc() && stop == end;
    return number;
}

bool isNumber(QByteArrayView text)
{
    bool isOne = false;
    static_cast<void>(text.toDouble(&isOne));
    return text.isEmpty() || isOne;
}

} // namespace hfm::offline
