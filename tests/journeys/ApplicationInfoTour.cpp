#include "ApplicationInfoTour.h"

#include "Hands.h"
#include "WorkbookTour.h"

using namespace Qt::StringLiterals;

namespace {

const QString infoWindow = u"frmApplicationInfo"_s;
constexpr char tabs[] = "sstabApplicationInfo";

bool isFilled(const QString &text)
{
    return !text.isEmpty();
}

/// Waits for a report, and a turn longer, so that the picture has the report's scroll bars.
void see(Journey &journey, const char *report, const QString &what, const QString &picture)
{
    journey.once(infoWindow, report, isFilled, what, [](QWidget &) {});
    journey.on(infoWindow, u"Look at it"_s,
               [&journey, picture](QWidget &info) { journey.picture(info, picture); });
}

void findSharedMembers(Journey &journey)
{
    journey.on(infoWindow, u"Find the shared entities"_s,
               [](QWidget &info) { Hands::click(info, "optDimension_1"); });
    see(journey, "txtSharedMembers", u"See them"_s, u"info-shared-members"_s);
}

void showList(Journey &journey)
{
    journey.on(infoWindow, u"Show the base entities of the group"_s, [](QWidget &info) {
        Hands::tab(info, tabs, u"Member &Lists "_s);
        Hands::choose(info, "cboEntityLists", u"[Base]"_s);
        Hands::choose(info, "cboParentMembers", u"ALDERBROOK"_s);
    });
    see(journey, "lblMembersInList", u"See them"_s, u"info-member-lists"_s);
    WorkbookTour::sendToExcel(journey, infoWindow, "cmdSendListToExcel", false,
                              u"base list Entity below ALDERBROOK"_s);
}

void compareParents(Journey &journey)
{
    journey.on(infoWindow, u"Compare the group with the list of partners"_s, [](QWidget &info) {
        Hands::tab(info, tabs, u"*Base Member &Compare "_s);
        Hands::click(info, "optDimensionCompare_10");
    });
    journey.on(infoWindow, u"Choose both"_s, [](QWidget &info) {
        Hands::choose(info, "cboTopMember1", u"ALDERBROOK"_s);
        Hands::choose(info, "cboTopMember2", u"IC-LIST"_s);
        Hands::click(info, "cmdCompare");
    });
    see(journey, "txtMissingBaseMembers", u"See who is no partner"_s, u"info-compare"_s);
}

void findDuplicates(Journey &journey)
{
    journey.on(infoWindow, u"Find what occurs twice in the management view"_s, [](QWidget &info) {
        Hands::tab(info, tabs, u"&Duplicates Below Parent"_s);
        Hands::choose(info, "cboParents", u"Management View"_s);
    });
    see(journey, "txtDuplicatesUnderSameParent", u"See it"_s, u"info-duplicates"_s);
}

void countEntities(Journey &journey)
{
    journey.on(infoWindow, u"Count the entities"_s, [](QWidget &info) {
        Hands::tab(info, tabs, u"S&tatistics"_s);
        Hands::type(info, "txtParentChildrenCheck", u"20"_s);
        Hands::click(info, "optDimensionStats_13");
    });
    see(journey, "txtStatistics", u"Read the report"_s, u"info-statistics"_s);
    journey.on(infoWindow, u"Close the window"_s, [](QWidget &info) { info.close(); });
}

} // namespace

void informAboutApplication(Journey &journey)
{
    journey.on(u"frmMain"_s, u"Ask what the application holds"_s,
               [](QWidget &window) { Hands::click(window, "cmdApplicationInfo"); });
    findSharedMembers(journey);
    showList(journey);
    compareParents(journey);
    findDuplicates(journey);
    countEntities(journey);
}
