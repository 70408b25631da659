#include "BuilderWindow.h"
#include "support/Errors.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

const QList<const char *> pickingButtons = {"cmdTreeViewCheckAll", "cmdTreeViewUncheckAll",
                                            "cmdTreeViewChecked",  "cmdListSelectAll",
                                            "cmdListDeselectAll",  "cmdListSelected"};

} // namespace

/// The builder's window as it opens, its texts and keys, and how it is left.
class tst_frmMemberListBuilder : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<BuilderWindow> mBuilder;
    QPointer<frmMemberListBuilder> mWindow;

    template <typename Control>
    Control *control(const char *name) const
    {
        return mBuilder->control<Control>(name);
    }
    FakeCalls &calls() { return mBuilder->fake.hfm.calls(); }

    void openAnew()
    {
        delete mBuilder->window;
        calls().clear();
        mBuilder->open();
        mWindow = mBuilder->window;
    }
    void showViewer() { control<QTabWidget>("ssTabMemberListBuilder")->setCurrentIndex(1); }

private Q_SLOTS:
    void init()
    {
        mBuilder = std::make_unique<BuilderWindow>(u"A|Alpha|Erste\n  B|Beta|Zweite"_s);
        mBuilder->open();
        mWindow = mBuilder->window;
    }
    void cleanup() { mBuilder.reset(); }

    // Texts.

    void captionsAreThose_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::newRow("hierarchy") << u"lblDimensionHierarchy"_s << u"Dimension Hierarchy"_s;
        QTest::newRow("check all") << u"cmdTreeViewCheckAll"_s << u"Check All"_s;
        QTest::newRow("uncheck all") << u"cmdTreeViewUncheckAll"_s << u"Uncheck All"_s;
        QTest::newRow("insert checked") << u"cmdTreeViewChecked"_s << u"Insert"_s;
        QTest::newRow("members") << u"lblMemberList"_s << u"All Dimension Members"_s;
        QTest::newRow("select all") << u"cmdListSelectAll"_s << u"Select All"_s;
        QTest::newRow("deselect all") << u"cmdListDeselectAll"_s << u"Deselect All"_s;
        QTest::newRow("insert selected") << u"cmdListSelected"_s << u"Insert"_s;
        QTest::newRow("items") << u"lblMemberListItems"_s << u"Items for New Member List"_s;
        QTest::newRow("clear") << u"cmdClearMemberList"_s << u"C&lear List Items"_s;
        QTest::newRow("up") << u"cmdMoveUpMemberInList"_s << QString();
        QTest::newRow("down") << u"cmdMoveDownMemberInList"_s << QString();
        QTest::newRow("delete") << u"cmdDeleteMemberInList"_s << QString();
        QTest::newRow("name") << u"LblMemberListName"_s << u"New Member List Name:"_s;
        QTest::newRow("generate") << u"cmdGenerateList"_s << u"&Generate List"_s;
        QTest::newRow("syntax") << u"lblMemberListSyntax"_s << u"Member List Syntax"_s;
        QTest::newRow("reset") << u"cmdResetMemberList"_s << u"&Reset List Syntax"_s;
        QTest::newRow("save") << u"cmdSaveMemberListFile"_s << u"&Save List Syntax"_s;
        QTest::newRow("lists") << u"lblDimensionLists"_s << u"ACCOUNT Lists:"_s;
        QTest::newRow("members in list") << u"lblMembersInList"_s << QString();
        QTest::newRow("denote") << u"lblDenote"_s << u"** Denotes Parent Member"_s;
        QTest::newRow("file") << u"lblCurrentMemberListFile"_s << u"Current List File "_s;
        QTest::newRow("dimension") << u"lblDimension"_s << u"ACCOUNT Dimension"_s;
        QTest::newRow("panel") << u"sbStatusBar_1"_s << u"Application: Comma & <b>Co</b>"_s;
        QTest::newRow("close") << u"mnuClose"_s << u"&Close Member List Builder"_s;
        QTest::newRow("exit") << u"mnuExit"_s << u"E&xit Tessaly"_s;
    }

    void captionsAreThose()
    {
        QFETCH(QString, name);
        const auto *object = mWindow->findChild<QObject *>(name);
        QVERIFY(object);
        QTEST(object->property("text").toString(), "caption");
    }

    void theWindowAndItsTabsAreTitled()
    {
        QCOMPARE(mWindow->objectName(), u"frmMemberListBuilder"_s);
        QCOMPARE(mWindow->windowTitle(), u"Tessaly - Member List Builder"_s);
        QCOMPARE(control<QMenu>("mnuFile")->title(), u"&File"_s);
        QVERIFY(control<QStatusBar>("sbStatusBar"));
        const auto *tabs = control<QTabWidget>("ssTabMemberListBuilder");
        QCOMPARE(tabs->count(), 2);
        QCOMPARE(tabs->tabText(0), u"Static List Builder "_s);
        QCOMPARE(tabs->tabText(1), u"List Viewer "_s);
        QCOMPARE(tabs->currentIndex(), 0);
    }

    void toolTipsAreThose_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("clear") << u"cmdClearMemberList"_s << u"Clear All Members from New List"_s;
        QTest::newRow("up") << u"cmdMoveUpMemberInList"_s << u"Move Selected List Member UP"_s;
        QTest::newRow("down") << u"cmdMoveDownMemberInList"_s
                              << u"Move Selected List Member DOWN"_s;
        QTest::newRow("delete") << u"cmdDeleteMemberInList"_s << u"Delete Selected List Member"_s;
        QTest::newRow("reset") << u"cmdResetMemberList"_s
                               << u"Reset Member List to Application Stored File"_s;
        QTest::newRow("save") << u"cmdSaveMemberListFile"_s << u"Save Member List File"_s;
    }

    void toolTipsAreThose()
    {
        QFETCH(QString, name);
        QTEST(mWindow->findChild<QWidget *>(name)->toolTip(), "toolTip");
    }

    void theThreeEditingButtonsHavePictures()
    {
        for (const char *name :
             {"cmdMoveUpMemberInList", "cmdMoveDownMemberInList", "cmdDeleteMemberInList"})
            QVERIFY2(!control<QPushButton>(name)->icon().isNull(), name);
    }

    // Loading.

    void itOpensWithTheMembersInTreeAndListAndNothingElse()
    {
        QCOMPARE(mBuilder->rows("lstMetadata"), QStringList({u"A - Alpha"_s, u"B - Beta"_s}));
        QCOMPARE(mBuilder->node({0}).data().toString(), u"A - Alpha"_s);
        QCOMPARE(mBuilder->node({0, 0}).data().toString(), u"B - Beta"_s);
        QVERIFY(!mBuilder->isChecked(mBuilder->node({0})));
        QVERIFY(!mBuilder->tree()->isExpanded(mBuilder->node({0})));
        QCOMPARE(mBuilder->selected("lstMetadata"), -1);
        QCOMPARE(mBuilder->rows("lstMemberList"), QStringList());
        QCOMPARE(control<QLineEdit>("txtMemberListName")->text(), QString());
        QCOMPARE(control<QWidget>("txtMemberListSyntax")->property("text").toString(), QString());
    }

    void itOpensWithTheKeyboardInTheTree() { QVERIFY(mBuilder->tree()->hasFocus()); }

    void theSixPickingButtonsAreOnAndGenerateIsOff()
    {
        for (const char *name : pickingButtons)
            QVERIFY2(mBuilder->isEnabled(name), name);
        QVERIFY(!mBuilder->isEnabled("cmdGenerateList"));
        for (const char *name : {"cmdResetMemberList", "cmdSaveMemberListFile",
                                 "cmdClearMemberList", "cmdDeleteMemberInList"})
            QVERIFY2(mBuilder->isEnabled(name), name);
    }

    void nothingIsWrittenInAnotherLanguageThanTheFirst()
    {
        mBuilder->global.gLanguageIndex = 1;
        openAnew();
        QCOMPARE(mBuilder->rows("lstMetadata"), QStringList({u"A - Alpha"_s, u"B - Beta"_s}));
        QCOMPARE(mBuilder->node({0}).data().toString(), u"A - Alpha"_s);
    }

    void loadingAsksHfmInThatOrder()
    {
        mBuilder->account().setMembers(u"A"_s);
        openAnew();
        QCOMPARE(calls().made(),
                 QStringList({u"GetDimensionName"_s, u"EnumAllMembers"_s, u"GetMemberLabel"_s,
                              u"GetMemberDescription"_s, u"EnumHierarchy"_s, u"EnumHierarchyAux"_s,
                              u"GetMemberLabel"_s, u"GetMemberDescription"_s, u"GetSystemInfo"_s,
                              u"GetMemberListFile"_s, u"EnumMemberListNames"_s}));
    }

    void loadingSetsTheSharedSystemInformation()
    {
        QVERIFY(mBuilder->global.gSystemInfo);
        QCOMPARE(mBuilder->global.gSystemInfo->GetApplicationName(), u"Comma"_s);
    }

    void theCaptionsNameTheDimensionOfTheLoading()
    {
        mBuilder->choose(FakeKind::Custom1, u"CUSTOM1"_s);
        QCOMPARE(control<QLabel>("lblDimension")->text(), u"ACCOUNT Dimension"_s);
        openAnew();
        QCOMPARE(control<QLabel>("lblDimension")->text(), u"CUSTOM1 Dimension"_s);
        QCOMPARE(control<QLabel>("lblDimensionLists")->text(), u"CUSTOM1 Lists:"_s);
    }

    void theCaptionsNameTheDimensionWhateverTheSharedNameSays()
    {
        mBuilder->choose(FakeKind::Account, u"CUSTOM1"_s);
        openAnew();
        QCOMPARE(control<QLabel>("lblDimension")->text(), u"ACCOUNT Dimension"_s);
        QCOMPARE(control<QLabel>("lblDimensionLists")->text(), u"ACCOUNT Lists:"_s);
    }

    void forEntityTreeAndListStayEmptyAndTheSevenButtonsOff()
    {
        mBuilder->fake.hfm.application().entity().setMembers(u"E|Group"_s);
        mBuilder->choose(FakeKind::Entity, u"ENTITY"_s);
        openAnew();
        QCOMPARE(mBuilder->rows("lstMetadata"), QStringList());
        QVERIFY(!mBuilder->node({0}).isValid());
        for (const char *name : pickingButtons)
            QVERIFY2(!mBuilder->isEnabled(name), name);
        QVERIFY(!mBuilder->isEnabled("cmdGenerateList"));
        QCOMPARE(calls().made(), QStringList({u"GetDimensionName"_s, u"GetSystemInfo"_s,
                                              u"GetMemberListFile"_s, u"EnumMemberListNames"_s}));
        QCOMPARE(control<QLabel>("lblDimension")->text(), u"ENTITY Dimension"_s);
        QCOMPARE(control<QLabel>("lblDimensionLists")->text(), u"ENTITY Lists:"_s);
        QVERIFY(control<QComboBox>("cboMemberLists")->count() > 0);
    }

    void forEntityTheGenerateButtonIsNeverOn()
    {
        mBuilder->choose(FakeKind::Entity, u"ENTITY"_s);
        openAnew();
        mBuilder->type("txtMemberListName", u"Sales"_s);
        QVERIFY(!mBuilder->isEnabled("cmdGenerateList"));
        for (const char *name :
             {"cmdMoveUpMemberInList", "cmdDeleteMemberInList", "cmdClearMemberList"}) {
            mBuilder->click(name);
            QVERIFY(!mBuilder->isEnabled("cmdGenerateList"));
        }
    }

    void entityIsTheDimensionsNameWhateverTheSharedNameSays()
    {
        mBuilder->choose(FakeKind::Account, u"ENTITY"_s);
        openAnew();
        QCOMPARE(mBuilder->rows("lstMetadata").size(), 2);
    }

    void anEmptyDimensionOpensEmptyWithItsButtonsOn()
    {
        mBuilder->account().setMembers({});
        openAnew();
        QCOMPARE(mBuilder->rows("lstMetadata"), QStringList());
        for (const char *name : pickingButtons) {
            QVERIFY2(mBuilder->isEnabled(name), name);
            mBuilder->click(name);
        }
        QCOMPARE(mBuilder->rows("lstMemberList"), QStringList());
    }

    void openingWithoutADimensionOrASessionIsObjectVariableNotSet()
    {
        delete mBuilder->window;
        const auto session = std::exchange(mBuilder->global.gSession, {});
        const auto withoutSession = errorOf(
            [&] { frmMemberListBuilder window(mBuilder->fake.services, mBuilder->global); });
        QVERIFY(withoutSession);
        QCOMPARE(withoutSession->number(), 91);
        mBuilder->global.gSession = session;
        mBuilder->global.gDimension.reset();
        const auto withoutDimension = errorOf(
            [&] { frmMemberListBuilder window(mBuilder->fake.services, mBuilder->global); });
        QVERIFY(withoutDimension);
        QCOMPARE(withoutDimension->number(), 91);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void openingFailsAsEachOperationOfHfmDoesAndShowsNothing_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char *operation : {"GetDimensionName", "EnumAllMembers", "GetMemberLabel",
                                      "GetMemberDescription", "EnumHierarchy", "EnumHierarchyAux",
                                      "GetSystemInfo", "GetMemberListFile", "EnumMemberListNames"})
            QTest::newRow(operation) << QString::fromLatin1(operation);
    }

    void openingFailsAsEachOperationOfHfmDoesAndShowsNothing()
    {
        QFETCH(QString, operation);
        const QByteArray name = operation.toLatin1();
        delete mBuilder->window;
        calls().fail(QLatin1StringView(name), RuntimeError(1234));
        const auto error = errorOf(
            [&] { frmMemberListBuilder window(mBuilder->fake.services, mBuilder->global); });
        QVERIFY(error);
        QCOMPARE(error->number(), 1234);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void moreThan32767MembersOverflow()
    {
        delete mBuilder->window;
        for (int i = 2; i <= 32'767; ++i)
            mBuilder->account().members().add(0, u"M%1"_s.arg(i));
        const auto error = errorOf(
            [&] { frmMemberListBuilder window(mBuilder->fake.services, mBuilder->global); });
        QVERIFY(error);
        QCOMPARE(error->number(), 6);
    }

    // Hands and ears.

    void everyControlHasAnAccessibleName()
    {
        for (const char *name : {"ssTabMemberListBuilder",  "trvMembers",
                                 "cmdTreeViewCheckAll",     "cmdTreeViewUncheckAll",
                                 "cmdTreeViewChecked",      "lstMetadata",
                                 "cmdListSelectAll",        "cmdListDeselectAll",
                                 "cmdListSelected",         "lstMemberList",
                                 "cmdClearMemberList",      "cmdMoveUpMemberInList",
                                 "cmdMoveDownMemberInList", "cmdDeleteMemberInList",
                                 "txtMemberListName",       "cmdGenerateList",
                                 "txtMemberListSyntax",     "cmdResetMemberList",
                                 "cmdSaveMemberListFile",   "cboMemberLists",
                                 "lstMembersInList",        "txtCurrentMemberListFile"}) {
            auto *accessible = QAccessible::queryAccessibleInterface(control<QWidget>(name));
            QVERIFY2(accessible, name);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), name);
        }
    }

    void labelsStandForTheirControls_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("buddy");
        QTest::newRow("tree") << u"lblDimensionHierarchy"_s << u"trvMembers"_s;
        QTest::newRow("members") << u"lblMemberList"_s << u"lstMetadata"_s;
        QTest::newRow("new list") << u"lblMemberListItems"_s << u"lstMemberList"_s;
        QTest::newRow("name") << u"LblMemberListName"_s << u"txtMemberListName"_s;
        QTest::newRow("syntax") << u"lblMemberListSyntax"_s << u"txtMemberListSyntax"_s;
        QTest::newRow("lists") << u"lblDimensionLists"_s << u"cboMemberLists"_s;
        QTest::newRow("file") << u"lblCurrentMemberListFile"_s << u"txtCurrentMemberListFile"_s;
    }

    void labelsStandForTheirControls()
    {
        QFETCH(QString, label);
        const QWidget *buddy = mWindow->findChild<QLabel *>(label)->buddy();
        QVERIFY(buddy);
        QTEST(buddy->objectName(), "buddy");
    }

    void theTabKeyGoesThroughTheFirstTabInItsOrder()
    {
        mBuilder->tree()->setFocus();
        QStringList names;
        for (int i = 0; i < 17; ++i) {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names, (QStringList{
                            u"trvMembers"_s,
                            u"cmdTreeViewCheckAll"_s,
                            u"cmdTreeViewUncheckAll"_s,
                            u"cmdTreeViewChecked"_s,
                            u"lstMetadata"_s,
                            u"cmdListSelectAll"_s,
                            u"cmdListDeselectAll"_s,
                            u"cmdListSelected"_s,
                            u"lstMemberList"_s,
                            u"cmdMoveUpMemberInList"_s,
                            u"cmdMoveDownMemberInList"_s,
                            u"cmdDeleteMemberInList"_s,
                            u"cmdClearMemberList"_s,
                            u"txtMemberListName"_s, // past Generate, which is off
                            u"txtMemberListSyntax"_s,
                            u"cmdResetMemberList"_s,
                            u"cmdSaveMemberListFile"_s,
                        }));
    }

    void theTabKeyGoesThroughTheSecondTabInItsOrder()
    {
        showViewer();
        control<QComboBox>("cboMemberLists")->setFocus();
        QStringList names;
        for (int i = 0; i < 3; ++i) {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names, (QStringList{u"cboMemberLists"_s, u"lstMembersInList"_s,
                                     u"txtCurrentMemberListFile"_s}));
    }

    void itFitsASmallScreen()
    {
        QVERIFY(mWindow->width() <= 1024);
        QVERIFY(mWindow->height() <= 768 - 60); // a title bar and a task bar
    }

    void longNamesDoNotWidenIt()
    {
        const QString longName(300, u'W');
        mBuilder->account().addUserList(longName, {u"A"_s});
        mBuilder->global.gApplicationName = longName;
        openAnew();
        showViewer();
        auto *lists = control<QComboBox>("cboMemberLists");
        lists->setCurrentText(longName);
        Q_EMIT lists->activated(lists->currentIndex());
        const auto *caption = control<QLabel>("lblMembersInList");
        QVERIFY(caption->text().contains(longName));
        QVERIFY(caption->wordWrap());
        QVERIFY(mWindow->minimumSizeHint().width() <= 1024);
    }

    // Leaving.

    void closeUnloadsTheWindow()
    {
        control<QAction>("mnuClose")->trigger();
        QTRY_VERIFY(!mWindow);
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>());
    }

    void exitEndsTheProgramAtOnceWithoutAsking()
    {
        control<QAction>("mnuExit")->trigger();
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>{0});
        QVERIFY(mBuilder->fake.prompts.asked.isEmpty());
    }

    void theMenuHasItsKeys()
    {
        QTest::keyClick(mWindow, Qt::Key_F, Qt::AltModifier);
        auto *menu = control<QMenu>("mnuFile");
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, Qt::Key_C);
        QTRY_VERIFY(!mWindow);
    }

    void aNewOpeningStartsEmpty()
    {
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
        mBuilder->type("txtMemberListName", u"Sales"_s);
        mBuilder->click("cmdGenerateList");
        openAnew();
        itOpensWithTheMembersInTreeAndListAndNothingElse();
    }
};

QTEST_MAIN(tst_frmMemberListBuilder)
#include "tst_frmMemberListBuilder.moc"
