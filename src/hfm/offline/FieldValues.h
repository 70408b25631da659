#pragma once

#include <QByteArrayView>

#include <optional>

/// What the texts of single fields mean.
namespace hfm::offline {

/// "Y" is true, "N" and an empty field are false, in any letter case; anything else is nothing.
std::optional<bool> flagValue(QByteArrayView text);

/// The code of an account type, in any letter case, as AccountAttributes::GetAccountType returns
/// it; unknownAccountType for any other text.
qint8 accountTypeCode(QByteArrayView text);

/// A number, read as far as the text is one.
struct WholeNumber
{
    qint16 value = 0;    ///< 0 for an empty text, and for what has no digits or does not fit
    bool isWhole = true; ///< whether that is all of the text
};
WholeNumber wholeNumber(QByteArrayView text);

/// Whether the text is a decimal number, with '.' as its point. An empty one counts as 0.
bool isNumber(QByteArrayView text);

} // namespace hfm::offline
