#include "hfm/offline/script/DateText.h"

#include <QLocale>

#include <cmath>

namespace hfm::offline::script {

namespace {

const QDate dayZero(1899, 12, 30);
constexpr double secondsOfDay = 86400;

/// The seconds since midnight, and the whole days; times before day zero count forward as well.
struct Parts
{
    qint64 days;
    int seconds;
};

Parts partsOf(double date)
{
    double days = std::trunc(date);
    double seconds = std::round(std::abs(date - days) * secondsOfDay);
    if (seconds >= secondsOfDay) {
        seconds = 0;
        days += date < 0 ? -1 : 1;
    }
    return {qint64(days), int(seconds)};
}

std::optional<QDate> dayIn(QStringView text)
{
    static const char *const forms[] = {"M/d/yyyy", "M-d-yyyy",   "yyyy-M-d",    "yyyy/M/d",
                                        "M/d/yy",   "d MMM yyyy", "MMM d, yyyy", "d-MMM-yyyy"};
    for (const char *form : forms) {
        QDate day = QLocale::c().toDate(text.toString(), QLatin1StringView(form).toString());
        if (!day.isValid())
            continue;
        if (QLatin1StringView(form) == QLatin1StringView("M/d/yy") && day.year() < 1930)
            day = day.addYears(100);
        return day;
    }
    return std::nullopt;
}

std::optional<int> secondsIn(QStringView text)
{
    static const char *const forms[] = {"h:mm:ss AP", "h:mm AP", "H:mm:ss", "H:mm"};
    for (const char *form : forms) {
        const QTime time = QLocale::c().toTime(text.toString(), QLatin1StringView(form).toString());
        if (time.isValid())
            return QTime(0, 0).secsTo(time);
    }
    return std::nullopt;
}

} // namespace

double daysOfDate(const QDateTime &date)
{
    return double(dayZero.daysTo(date.date())) + QTime(0, 0).secsTo(date.time()) / secondsOfDay;
}

std::optional<QDate> dayOf(double days)
{
    constexpr double first = -657434; // 1 January 100
    constexpr double last = 2958466;  // 1 January 10000
    if (!(days >= first && days < last))
        return std::nullopt;
    return dayZero.addDays(partsOf(days).days);
}

std::optional<double> dateIn(QStringView text)
{
    constexpr qsizetype longest = 40;
    text = text.trimmed();
    if (text.size() > longest)
        return std::nullopt;
    const qsizetype colon = text.indexOf(u':');
    const qsizetype blank = colon < 0 ? -1 : text.first(colon).lastIndexOf(u' ');
    const QStringView dayText = colon < 0 ? text : text.first(std::max<qsizetype>(blank, 0));
    double days = 0;
    if (!dayText.isEmpty()) {
        const auto day = dayIn(dayText.trimmed());
        if (!day)
            return std::nullopt;
        days = double(dayZero.daysTo(*day));
    }
    if (colon < 0)
        return dayText.isEmpty() ? std::nullopt : std::optional(days);
    const auto seconds = secondsIn(text.sliced(blank + 1));
    return seconds ? std::optional(days + *seconds / secondsOfDay) : std::nullopt;
}

QString dateText(double days)
{
    const auto day = dayOf(days);
    if (!day)
        return QString::number(days);
    const Parts parts = partsOf(days);
    const QString time =
        QLocale::c().toString(QTime(0, 0).addSecs(parts.seconds), QStringLiteral("h:mm:ss AP"));
    if (parts.days == 0)
        return time;
    const QString date = QLocale::c().toString(*day, QStringLiteral("M/d/yyyy"));
    return parts.seconds == 0 ? date : date + QLatin1Char(' ') + time;
}

} // namespace hfm::offline::script
