#pragma once

#include "hfm/Dimension.h"

#include <QLocale>

/// A hierarchy's members counted.
namespace Statistics {

/// What a dimension's report adds to the counts.
enum class Section {
    None,
    SystemAccounts,
    WideParents,
    CurrenciesAndConsolMethods,
    Currencies,
};

/// The section behind an option button, by its index: 12 accounts, 13 entities, 14 Custom1, 15
/// Custom2; none for any other.
Section sectionOfOption(int index);

/// How many children a parent may have that is not called wide: a number in the user's regional
/// format, blanks around it allowed. It counts as a number only where a parent is met; the report
/// shows it as it was typed.
struct Threshold
{
    QString text;
    QLocale locale;
};

/// The nine counts and the section, in lines with blank ones between them; no line break behind
/// the last. Fails as the dimension's operations do, and with RuntimeError TypeMismatch where
/// "[System]" or "[Currencies]" is empty or where a parent is measured by a threshold that is no
/// number.
QString report(hfm::Dimension &dimension, Section section, const Threshold &threshold);

} // namespace Statistics
