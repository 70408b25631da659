#pragma once

#include <QStringView>

#include <optional>

namespace hfm::offline::script {

/// The number that a text is, with blanks around it, a sign, commas between groups of three digits
/// before the point, or in the notation &H; nothing where it is no number.
std::optional<double> numberIn(QStringView text);

/// The value of hexadecimal (base 16) or octal (base 8) digits as VBScript reads them: up to FFFF
/// and FFFFFFFF are signed numbers of 16 and 32 bits. Nothing where there are none or too many.
std::optional<qint32> basedNumber(QStringView digits, int base);

/// A number as VBScript writes it: up to 15 digits, with an exponent where it is very large or
/// very small.
QString numberText(double number);

} // namespace hfm::offline::script
