#pragma once

#include <QDateTime>
#include <QStringView>

#include <optional>

/// Dates as VBScript keeps them: days since 30 December 1899, the time of day in the fraction.
namespace hfm::offline::script {

double daysOfDate(const QDateTime &date);
/// The day that a date is of; nothing outside of the years 100 to 9999.
std::optional<QDate> dayOf(double days);

/// The date that a text is: month/day/year, day-month-year or year-month-day with / or - between
/// them, with a time behind it or without; nothing where it is none.
std::optional<double> dateIn(QStringView text);

/// "11/21/2012", "4:05:00 PM", or both with a blank between them: a date without a time of day, a
/// time without a date, or neither missing.
QString dateText(double days);

} // namespace hfm::offline::script
