#include "hfm/offline/CalendarMembers.h"

#include "hfm/offline/SystemMembers.h"

namespace hfm::offline {

namespace {

void addYears(MemberAdder &years, int currentYear)
{
    constexpr int around = 5;
    for (int year = currentYear - around; year <= currentYear + around; ++year)
        years.add(QByteArrayView(QByteArray::number(year)), rootMember);
}

void addPeriods(MemberAdder &periods)
{
    static constexpr QByteArrayView months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const MemberId year = periods.add(QByteArrayView("[Year]"), rootMember);
    MemberId quarter = rootMember;
    for (int month = 0; month < 12; ++month) {
        if (month % 3 == 0)
            quarter = periods.add(QByteArrayView("Q" + QByteArray::number(month / 3 + 1)), year);
        periods.add(months[month], quarter);
    }
}

void addViews(MemberAdder &views)
{
    for (const QByteArrayView view : {"<Scenario View>", "YTD", "QTD", "MTD", "Periodic"})
        views.add(view, rootMember);
}

} // namespace

void addCalendar(ApplicationDraft &draft, int currentYear)
{
    const auto addTo = [&](DimensionKind kind, auto add) {
        if (draft.dimension(kind).count() > 0)
            return;
        MemberAdder adder(draft, kind);
        add(adder);
    };
    addTo(DimensionKind::Year, [&](MemberAdder &years) { addYears(years, currentYear); });
    addTo(DimensionKind::Period, addPeriods);
    addTo(DimensionKind::View, addViews);
}

} // namespace hfm::offline
