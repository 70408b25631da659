#include "ViewerTour.h"

#include "Hands.h"
#include "WorkbookTour.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString viewer = u"frmMetadataViewer"_s;
constexpr char totals[] = "lblTotalMembers";

void openViewer(Journey &journey, const QString &dimension)
{
    journey.on(u"frmMain"_s, u"View the dimension "_s + dimension, [dimension](QWidget &window) {
        Hands::choose(window, "cboSetDimension", dimension);
        Hands::click(window, "cmdMetadataViewer");
    });
    journey.on(viewer, u"Make room for the attributes"_s,
               [](QWidget &window) { window.resize(1130, 560); });
}

void see(Journey &journey, const QString &expectedTotals, const QString &what,
         const QString &picture, const Journey::Action &next)
{
    const auto isExpected = [expectedTotals](const QString &text) {
        return text.contains(expectedTotals);
    };
    journey.once(viewer, totals, isExpected, what, [](QWidget &) {});
    // A turn later the tree has been laid out.
    journey.on(viewer, u"Look at it"_s, [&journey, picture, next](QWidget &window) {
        journey.picture(window, picture);
        next(window);
    });
}

void closeViewer(QWidget &window)
{
    window.close();
}

void viewAccounts(Journey &journey)
{
    openViewer(journey, u"Account"_s);
    journey.on(viewer, u"Open every account"_s,
               [](QWidget &window) { Hands::click(window, "cmdExpandAll"); });
    see(journey, u"Total Members - "_s, u"See the accounts with their attributes"_s,
        u"viewer-accounts"_s, [](QWidget &) {});
    WorkbookTour::sendToExcel(journey, viewer, "cmdSendToExcel", true, u"attributes Account"_s);
    journey.on(viewer, u"Choose a top member"_s, [](QWidget &window) {
        auto *tree = window.findChild<QWidget *>(u"trvMembers"_s);
        QTest::keyClick(tree, Qt::Key_Down);
        Hands::menu(window, "mnuTopMember");
    });
    journey.on(viewer, u"Open everything below the top member"_s,
               [](QWidget &window) { Hands::click(window, "cmdExpandAll"); });
    see(journey, u"Total Members from Top Member of "_s, u"See it alone"_s, u"viewer-top-member"_s,
        [](QWidget &) {});
    WorkbookTour::sendToExcel(journey, viewer, "cmdSendToExcel", true,
                              u"attributes Account below ASSETS"_s);
    journey.on(viewer, u"Close the viewer"_s, closeViewer);
}

void viewEntities(Journey &journey)
{
    openViewer(journey, u"Entity"_s);
    journey.on(viewer, u"List the entities in Swiss francs"_s, [](QWidget &window) {
        Hands::type(window, "cboEntityCurrencyFilter", u"chf"_s);
        Hands::click(window, "optEntityFilterSwitch_0");
    });
    see(journey, u"Total Members - 1 levels"_s, u"See them"_s, u"viewer-entities"_s, closeViewer);
}

} // namespace

void viewMetadata(Journey &journey)
{
    viewAccounts(journey);
    viewEntities(journey);
}
