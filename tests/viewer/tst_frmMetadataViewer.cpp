#include "support/FakeServices.h"
#include "support/Wheel.h"
#include "viewer/frmMetadataViewer.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

class tst_frmMetadataViewer : public QObject
{
    Q_OBJECT

    std::unique_ptr<FakeServices> mServices;
    modGlobal mGlobal;
    std::unique_ptr<frmMetadataViewer> mWindow;

    FakeApplication &application() { return mServices->hfm.application(); }
    FakeCalls &calls() { return mServices->hfm.calls(); }

    void choose(FakeKind kind, const QString &name)
    {
        mGlobal.gDimension = application().dimensions[size_t(kind)];
        mGlobal.gDimensionName = name;
    }
    void open(FakeKind kind, const QString &name)
    {
        choose(kind, name);
        mWindow = std::make_unique<frmMetadataViewer>(mServices->services, mGlobal);
        mWindow->setAttribute(Qt::WA_DeleteOnClose, false);
        mWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(mWindow.get()));
    }
    void openCustom(const QString &outline)
    {
        application().custom(1).setMembers(outline);
        open(FakeKind::Custom1, u"CUSTOM1"_s);
    }
    void openAccounts()
    {
        application().account().setMembers(
            u"Net|Net\n  Sales|All\n    Home|Home\n  Cost|All\nTax"_s);
        open(FakeKind::Account, u"ACCOUNT"_s);
    }
    void openEntities()
    {
        application().value().setMembers(
            u"[None]\nEUR Total\n  EUR\n  EUR Adjs\nUSD Total\n  USD"_s);
        application().security->addClass(u"North"_s);
        application().security->addClass(u"South"_s);
        application().entity().setMembers(u"Group|All\n  US01|US\n  FR01|FR\n  DE01|DE"_s);
        FakeDimension &entity = application().entity();
        const hfm::MemberId euro = application().value().members().find(u"EUR"_s);
        const hfm::MemberId dollar = application().value().members().find(u"USD"_s);
        entity.entity(u"Group"_s).currency = euro;
        entity.entity(u"US01"_s).currency = dollar;
        entity.entity(u"FR01"_s).currency = euro;
        entity.entity(u"DE01"_s).currency = euro;
        entity.entity(u"US01"_s).securityClass = 0;
        entity.entity(u"FR01"_s).securityClass = 1;
        open(FakeKind::Entity, u"ENTITY"_s);
    }

    template <typename Widget>
    Widget *find(const char *name)
    {
        auto *widget = mWindow->findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no %s", name);
        return widget;
    }
    QTreeView *tree() { return find<QTreeView>("trvMembers"); }
    QTreeView *topTree() { return find<QTreeView>("trvTopMember"); }
    QString title() { return find<QLabel>("lblTotalMembers")->text(); }
    void click(const char *button)
    {
        QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton);
    }
    QMenu *menu() { return find<QMenu>("mnuRightClick"); }
    QStringList entries(const char *combo)
    {
        QStringList all;
        for (int i = 0; i < find<QComboBox>(combo)->count(); ++i)
            all.append(find<QComboBox>(combo)->itemText(i));
        return all;
    }

    QString printed(const QTreeView *view)
    {
        QString text;
        std::vector<std::pair<QModelIndex, int>> open;
        const auto push = [&](const QModelIndex &parent, int depth) {
            for (int row = view->model()->rowCount(parent); row > 0; --row)
                open.push_back({view->model()->index(row - 1, 0, parent), depth});
        };
        push({}, 0);
        while (!open.empty()) {
            const auto [index, depth] = open.back();
            open.pop_back();
            text += QString(2 * depth, u' ') + index.data().toString() + u'\n';
            push(index, depth + 1);
        }
        return text;
    }

    /// The node at the end of a way of rows from the top.
    QModelIndex at(QTreeView *view, const QList<int> &way)
    {
        QModelIndex index;
        for (const int row : way)
            index = view->model()->index(row, 0, index);
        return index;
    }
    void setTopMember(const QList<int> &way)
    {
        tree()->setCurrentIndex(at(tree(), way));
        find<QAction>("mnuTopMember")->trigger();
    }

private Q_SLOTS:
    void init()
    {
        mServices = std::make_unique<FakeServices>();
        mGlobal = {};
        mGlobal.gSession = mServices->hfm.openSession();
        mGlobal.gMetadata = mGlobal.gSession->GetMetadata();
        mGlobal.gApplicationName = u"Comma"_s;
    }
    void cleanup()
    {
        mWindow.reset();
        QVERIFY(mServices->program.endCodes.isEmpty());
    }

    // Opening.

    void theWindowHasItsTitlesAndCaptions()
    {
        openAccounts();
        QCOMPARE(mWindow->objectName(), u"frmMetadataViewer"_s);
        QCOMPARE(mWindow->windowTitle(), u"Tessaly - Metadata Viewer"_s);
        QCOMPARE(find<QLabel>("lblDimension")->text(), u"ACCOUNT Dimension"_s);
        QCOMPARE(find<QLabel>("sbStatusBar_1")->text(), u"Application: Comma"_s);
        QVERIFY(find<QStatusBar>("sbStatusBar")->isVisible());
        QCOMPARE(find<QRadioButton>("optShowAttributes_0")->text(), u"Show Attributes"_s);
        QCOMPARE(find<QRadioButton>("optShowAttributes_1")->text(), u"Hide Attributes"_s);
        QCOMPARE(find<QCheckBox>("chk_ExpAttribs")->text(), u"Display Expanded Attributes"_s);
        QCOMPARE(find<QPushButton>("cmdExpandAll")->text(), u"Expand All"_s);
        QCOMPARE(find<QPushButton>("cmdFind")->text(), u"&Find"_s);
        QCOMPARE(find<QPushButton>("cmdSendToExcel")->text(), u"Send to E&xcel -->"_s);
        QCOMPARE(find<QPushButton>("cmdRemoveTopMember")->text(), u"Remove Top Member"_s);
        QCOMPARE(find<QPushButton>("cmdRerunEntityFilters")->text(), u"Re-Run Filters"_s);
        QCOMPARE(find<QGroupBox>("fraEntityFilters")->title(), u" Entity Filters "_s);
        QCOMPARE(find<QRadioButton>("optEntityFilterSwitch_0")->text(), u"On"_s);
        QCOMPARE(find<QRadioButton>("optEntityFilterSwitch_1")->text(), u"Off"_s);
        QCOMPARE(find<QAction>("mnuTopMember")->text(), u"Set as Top Member"_s);
        QCOMPARE(find<QAction>("mnuNormalTreeView")->text(), u"Remove Top Member"_s);
    }

    void theWindowOpensWithAttributesShownAndFiltersOff()
    {
        openAccounts();
        QVERIFY(find<QRadioButton>("optShowAttributes_0")->isChecked());
        QVERIFY(!find<QCheckBox>("chk_ExpAttribs")->isChecked());
        QVERIFY(find<QCheckBox>("chk_ExpAttribs")->isEnabled());
        QVERIFY(find<QRadioButton>("optEntityFilterSwitch_1")->isChecked());
        QVERIFY(!find<QPushButton>("cmdRerunEntityFilters")->isEnabled());
        QVERIFY(tree()->isVisible());
        QVERIFY(!topTree()->isVisible());
        QVERIFY(!find<QPushButton>("cmdRemoveTopMember")->isVisible());
        QVERIFY(find<QAction>("mnuTopMember")->isVisible());
        QVERIFY(!find<QAction>("mnuNormalTreeView")->isVisible());
        QVERIFY(!menu()->isVisible());
        QVERIFY(find<QPushButton>("cmdSendToExcel")->isEnabled());
    }

    void theTotalIsOneMoreThanTheOccurrences()
    {
        openAccounts();
        QCOMPARE(title(), u"6 Total Members - 3 levels"_s);
    }

    void theTreeOpensAtItsFirstLevelWithTheFirstNodeCurrent()
    {
        openAccounts();
        QCOMPARE(tree()->currentIndex(), at(tree(), {0}));
        QVERIFY(!tree()->isExpanded(at(tree(), {0})));
        QVERIFY(tree()->hasFocus());
    }

    void eachNodeShowsTextKeyAndTag()
    {
        openCustom(u"A|one\n  S|shared\nB|two\n  S"_s);
        QCOMPARE(printed(tree()), u"A - one (UD1=, UD2=, UD3=, Security=[Default])\n"
                                  "  S - shared (UD1=, UD2=, UD3=, Security=[Default])\n"
                                  "B - two (UD1=, UD2=, UD3=, Security=[Default])\n"
                                  "  S - shared (UD1=, UD2=, UD3=, Security=[Default])\n"_s);
        const QModelIndex shared = at(tree(), {1, 0});
        QCOMPARE(shared.data(MemberTreeModel::KeyRole).toString(), u"KEY3"_s);
        QCOMPARE(shared.data(MemberTreeModel::TagRole).toString(), u"2_B#1_S"_s);
    }

    void anUnsupportedDimensionIsToldAndItsTreeIsEmpty()
    {
        application().dimension(FakeKind::Scenario).setMembers(u"Actual"_s);
        open(FakeKind::Scenario, u"SCENARIO"_s);
        const QList<Prompt> expected = {
            {u"Unsupported Dimension"_s,
             u"The SCENARIO dimension is not yet support for metadata viewing."_s,
             Prompt::Icon::Exclamation, Prompt::Buttons::OkCancel}};
        QCOMPARE(mServices->prompts.asked, expected);
        QVERIFY(mWindow->isVisible());
        QCOMPARE(tree()->model()->rowCount(), 0);
        QCOMPARE(title(), u"0 Total Members - 0 levels"_s);
        QCOMPARE(find<QLabel>("lblDimension")->text(), u"SCENARIO Dimension"_s);
        QVERIFY(!find<QGroupBox>("fraEntityFilters")->isVisible());
    }

    void anUnsupportedDimensionAnsweredCancelStaysOpenToo()
    {
        mServices->prompts.answers = {Prompts::Answer::Cancel};
        open(FakeKind::Year, u"YEAR"_s);
        QVERIFY(mWindow->isVisible());
    }

    void aDimensionWithoutMembersIsAnEmptyTree()
    {
        openCustom({});
        QCOMPARE(tree()->model()->rowCount(), 0);
        QCOMPARE(title(), u"1 Total Members - 1 levels"_s);
        click("cmdExpandAll");
        QTest::keyClicks(tree(), u"a"_s);
        QTest::keyClick(tree(), Qt::Key_Asterisk);
        QTest::keyClick(tree(), Qt::Key_A, Qt::ControlModifier);
        find<QAction>("mnuTopMember")->trigger();
        QVERIFY(tree()->isVisible());
    }

    void withoutADimensionTheWindowCannotBeLoaded()
    {
        try {
            const frmMetadataViewer window(mServices->services, mGlobal);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 91);
        }
    }

    void everyFailureWhileOpeningGoesItsWay_data()
    {
        QTest::addColumn<FakeKind>("kind");
        QTest::addColumn<QString>("name");
        QTest::newRow("accounts") << FakeKind::Account << u"ACCOUNT"_s;
        QTest::newRow("entities, with the filters' lists") << FakeKind::Entity << u"ENTITY"_s;
    }
    void everyFailureWhileOpeningGoesItsWay()
    {
        QFETCH(FakeKind, kind);
        QFETCH(QString, name);
        if (kind == FakeKind::Account)
            openAccounts();
        else
            openEntities();
        mWindow.reset();
        calls().clear();
        open(kind, name);
        const qsizetype operations = calls().made().size();
        QVERIFY(operations > 50);
        mWindow.reset();
        for (int call = 1; call <= operations; ++call) {
            choose(kind, name);
            calls().fail({}, RuntimeError(70), call);
            QVERIFY_THROWS_EXCEPTION(RuntimeError, frmMetadataViewer(mServices->services, mGlobal));
            QVERIFY(!QGuiApplication::overrideCursor());
        }
    }

    // Rebuilding.

    void theHourglassShowsWhileTheTreeIsBuilt()
    {
        openAccounts();
        QCOMPARE(mWindow->cursor().shape(), Qt::ArrowCursor);
        QList<Qt::CursorShape> shapes;
        const auto note = [&] {
            shapes.append(mWindow->cursor().shape());
            shapes.append(QGuiApplication::overrideCursor()->shape());
        };
        const auto connection =
            connect(tree()->model(), &QAbstractItemModel::modelReset, this, [&] {
                if (tree()->model()->rowCount() > 0)
                    note();
            });
        click("chk_ExpAttribs");
        disconnect(connection);
        QCOMPARE(shapes, QList({Qt::WaitCursor, Qt::WaitCursor}));
        QCOMPARE(mWindow->cursor().shape(), Qt::ArrowCursor);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void aFailureWhileRebuildingKeepsWhatWasBuiltAndTheHourglass()
    {
        openCustom(u"A\n  B\n  C\nD"_s);
        calls().fail("GetMemberDescription"_L1, RuntimeError(70), 3);
        click("optShowAttributes_1");
        QCOMPARE(printed(tree()), u"A - \n  B - \n  \n"_s); // the third without its text
        QCOMPARE(mWindow->cursor().shape(), Qt::WaitCursor);
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(mServices->program.endCodes, QList<int>{1});
        QCOMPARE(mServices->prompts.asked.last().title, u"Tessaly"_s);
        QCOMPARE(mServices->prompts.asked.last().text,
                 u"Run-time error '70':\r\n\r\nPermission denied"_s);
        mServices->program.endCodes.clear();
    }

    void aFailureWhileTheHierarchyIsReadLeavesAnEmptyTree()
    {
        openCustom(u"A\n  B\n  C\nD"_s);
        calls().fail("EnumChildMembers"_L1, RuntimeError(70), 2);
        click("optShowAttributes_1");
        QCOMPARE(printed(tree()), QString());
        QCOMPARE(mServices->program.endCodes, QList<int>{1});
        mServices->program.endCodes.clear();
    }

    void hidingAttributesUnticksAndDisablesTheExpandedOnes()
    {
        openAccounts();
        click("chk_ExpAttribs");
        QVERIFY(printed(tree()).contains(u"DecPlaces="_s));
        click("optShowAttributes_1");
        QVERIFY(!find<QCheckBox>("chk_ExpAttribs")->isChecked());
        QVERIFY(!find<QCheckBox>("chk_ExpAttribs")->isEnabled());
        QCOMPARE(printed(tree()),
                 u"Net - Net\n  Sales - All\n    Home - Home\n  Cost - All\nTax - \n"_s);
        click("optShowAttributes_0");
        QVERIFY(find<QCheckBox>("chk_ExpAttribs")->isEnabled());
        QVERIFY(!find<QCheckBox>("chk_ExpAttribs")->isChecked());
        QVERIFY(printed(tree()).contains(u"Net - Net (Type=Income, "_s));
    }

    void theSameOptionClickedAgainRebuildsTheTree()
    {
        openAccounts();
        application().account().setMembers(u"New"_s);
        click("optShowAttributes_0");
        QVERIFY(printed(tree()).startsWith(u"New - "_s));
    }

    void tickingExpandedAttributesOnACustomDimensionRebuildsUnchangedTexts()
    {
        openCustom(u"A\n  B"_s);
        const QString before = printed(tree());
        const QSignalSpy reset(tree()->model(), &QAbstractItemModel::modelReset);
        click("chk_ExpAttribs");
        QVERIFY(!reset.isEmpty());
        QCOMPARE(printed(tree()), before);
    }

    void anOptionIsChosenWithTheKeyboardToo()
    {
        openAccounts();
        find<QRadioButton>("optShowAttributes_0")->setFocus();
        QTest::keyClick(find<QRadioButton>("optShowAttributes_0"), Qt::Key_Right);
        QVERIFY(find<QRadioButton>("optShowAttributes_1")->isChecked());
        QVERIFY(printed(tree()).startsWith(u"Net - Net\n"_s));
    }

    void aRebuildReadsTheDimensionThatIsCurrentNow()
    {
        openAccounts();
        application().custom(2).setMembers(u"Product"_s);
        choose(FakeKind::Custom2, u"CUSTOM2"_s);
        click("chk_ExpAttribs");
        QVERIFY(printed(tree()).startsWith(u"Product - "_s));
        QCOMPARE(find<QLabel>("lblDimension")->text(), u"ACCOUNT Dimension"_s);
    }

    void aRebuildOfADimensionThatCannotBeViewedHasEmptyTexts()
    {
        openAccounts();
        application().dimension(FakeKind::Scenario).setMembers(u"Actual\n  Budget"_s);
        choose(FakeKind::Scenario, u"SCENARIO"_s);
        click("optShowAttributes_1");
        QCOMPARE(printed(tree()), u"\n  \n"_s);
        QCOMPARE(at(tree(), {0, 0}).data(MemberTreeModel::TagRole).toString(),
                 u"0_Actual#1_Budget"_s);
    }

    void descriptionsAreInTheChosenLanguage()
    {
        mGlobal.gLanguageIndex = 1;
        openCustom(u"A|English|Deutsch"_s);
        QVERIFY(printed(tree()).startsWith(u"A - Deutsch ("_s));
    }

    // Expand All, find, levels.

    void expandAllOpensEveryNode()
    {
        openAccounts();
        click("cmdExpandAll");
        QVERIFY(tree()->isExpanded(at(tree(), {0})));
        QVERIFY(tree()->isExpanded(at(tree(), {0, 0})));
        QVERIFY(!tree()->visualRect(at(tree(), {0, 0, 0})).isEmpty());
    }

    void expandAllOpensTheTopMembersTreeWhenThatIsShown()
    {
        openAccounts();
        setTopMember({0});
        click("cmdExpandAll");
        QVERIFY(topTree()->isExpanded(at(topTree(), {0, 0})));
        QVERIFY(!tree()->isExpanded(at(tree(), {0})));
    }

    void findIsInert()
    {
        openAccounts();
        const QModelIndex before = tree()->currentIndex();
        calls().clear();
        QTest::keyClicks(find<QLineEdit>("txtSearch"), u"Cost"_s);
        QTest::keyClick(find<QLineEdit>("txtSearch"), Qt::Key_Return);
        click("cmdFind");
        QCOMPARE(find<QLineEdit>("txtSearch")->text(), u"Cost"_s);
        QCOMPARE(tree()->currentIndex(), before);
        QVERIFY(calls().made().isEmpty());
    }

    void aNodesLevelIsOneMoreThanItsAncestors()
    {
        openAccounts();
        QCOMPARE(mWindow->GetNodeLevel(at(tree(), {0})), 1);
        QCOMPARE(mWindow->GetNodeLevel(at(tree(), {0, 0, 0})), 3);
    }

    // The right-click menu.

    void theMenuOpensAsTheRightButtonIsReleased()
    {
        openAccounts();
        const QPoint place = tree()->visualRect(at(tree(), {1})).center();
        QTest::mousePress(tree()->viewport(), Qt::RightButton, {}, place);
        QVERIFY(!menu()->isVisible());
        QTest::mouseRelease(tree()->viewport(), Qt::RightButton, {}, place);
        QVERIFY(menu()->isVisible());
        QCOMPARE(tree()->currentIndex(), at(tree(), {1}));
    }

    void theLeftButtonOpensNoMenu()
    {
        openAccounts();
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {},
                          tree()->visualRect(at(tree(), {1})).center());
        QVERIFY(!menu()->isVisible());
    }

    void theMenuKeyOpensTheMenuOnTheSelectedNode()
    {
        openAccounts();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QCursor::pos());
        QCoreApplication::sendEvent(tree(), &event);
        QVERIFY(menu()->isVisible());
    }

    void theEventThatSomePlatformsSendOnThePressOpensNoMenu()
    {
        openAccounts();
        const QPoint place = tree()->visualRect(at(tree(), {0})).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, QCursor::pos());
        QCoreApplication::sendEvent(tree()->viewport(), &event);
        QVERIFY(!menu()->isVisible());
    }

    void nothingSelectedOpensNoMenu()
    {
        openAccounts();
        tree()->selectionModel()->clear();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QCursor::pos());
        QCoreApplication::sendEvent(tree(), &event);
        QTest::mouseClick(tree()->viewport(), Qt::RightButton, {},
                          QPoint(5, tree()->viewport()->height() - 5));
        QVERIFY(!menu()->isVisible());
    }

    void theRightButtonBesideTheRowsSelectsNothingAndOpensNoMenu()
    {
        openAccounts();
        QVERIFY(tree()->selectionModel()->hasSelection());
        QTest::mouseClick(tree()->viewport(), Qt::RightButton, {},
                          QPoint(5, tree()->viewport()->height() - 5));
        QVERIFY(!tree()->selectionModel()->hasSelection());
        QVERIFY(!menu()->isVisible());
    }

    void aNodeWithEmptyTextOpensNoMenu()
    {
        openAccounts();
        application().dimension(FakeKind::Scenario).setMembers(u"Actual"_s);
        choose(FakeKind::Scenario, u"SCENARIO"_s);
        click("optShowAttributes_0");
        QTest::mouseClick(tree()->viewport(), Qt::RightButton, {},
                          tree()->visualRect(at(tree(), {0})).center());
        QCOMPARE(tree()->currentIndex(), at(tree(), {0}));
        QVERIFY(!menu()->isVisible());
    }

    void theTopMembersTreeHasTheMenuToo()
    {
        openAccounts();
        setTopMember({0});
        QTest::mouseClick(topTree()->viewport(), Qt::RightButton, {},
                          topTree()->visualRect(at(topTree(), {0})).center());
        QVERIFY(menu()->isVisible());
    }

    // The top-member view.

    void setAsTopMemberShowsTheMemberAndAllBelowIt()
    {
        openCustom(u"T\n  A|one\n    X\n      Z\n    Y\n  B"_s);
        setTopMember({0, 0});
        QVERIFY(topTree()->isVisible());
        QVERIFY(!tree()->isVisible());
        QCOMPARE(printed(topTree()), u"A - one (UD1=, UD2=, UD3=, Security=[Default])\n"
                                     "  X -  (UD1=, UD2=, UD3=, Security=[Default])\n"
                                     "    Z -  (UD1=, UD2=, UD3=, Security=[Default])\n"
                                     "  Y -  (UD1=, UD2=, UD3=, Security=[Default])\n"_s);
        QCOMPARE(title(), u"4 Total Members from Top Member of A - 3 levels"_s);
        QCOMPARE(at(topTree(), {0, 1}).data(MemberTreeModel::KeyRole).toString(), u"KEY4"_s);
        QCOMPARE(at(topTree(), {0, 1}).data(MemberTreeModel::TagRole).toString(), u"1_A#4_Y"_s);
    }

    void theTopMemberViewChangesWhatIsOffered()
    {
        openEntities();
        setTopMember({0});
        QVERIFY(!find<QRadioButton>("optShowAttributes_0")->isVisible());
        QVERIFY(!find<QRadioButton>("optShowAttributes_1")->isVisible());
        QVERIFY(find<QAction>("mnuNormalTreeView")->isVisible());
        QVERIFY(!find<QAction>("mnuTopMember")->isVisible());
        QVERIFY(find<QPushButton>("cmdRemoveTopMember")->isVisible());
        QVERIFY(!find<QGroupBox>("fraEntityFilters")->isVisible());
    }

    void removeTopMemberGoesBackToTheFullTree_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::newRow("button") << true;
        QTest::newRow("menu") << false;
    }
    void removeTopMemberGoesBackToTheFullTree()
    {
        QFETCH(bool, byButton);
        openEntities();
        setTopMember({0});
        if (byButton)
            click("cmdRemoveTopMember");
        else
            find<QAction>("mnuNormalTreeView")->trigger();
        QVERIFY(tree()->isVisible());
        QVERIFY(!topTree()->isVisible());
        QVERIFY(find<QRadioButton>("optShowAttributes_0")->isVisible());
        QVERIFY(find<QRadioButton>("optShowAttributes_1")->isVisible());
        QVERIFY(find<QAction>("mnuTopMember")->isVisible());
        QVERIFY(!find<QAction>("mnuNormalTreeView")->isVisible());
        QVERIFY(!find<QPushButton>("cmdRemoveTopMember")->isVisible());
        QVERIFY(find<QGroupBox>("fraEntityFilters")->isVisible());
        QCOMPARE(title(), u"5 Total Members - 2 levels"_s);
        QCOMPARE(topTree()->model()->rowCount(), 1);
    }

    void aTopMemberWithoutChildrenIsOneMemberOnOneLevel()
    {
        openAccounts();
        setTopMember({1});
        QCOMPARE(title(), u"1 Total Members from Top Member of Tax - 1 levels"_s);
    }

    void aTopMemberWithChildrenOnlyHasTwoLevels()
    {
        openCustom(u"A\n  B\n  C"_s);
        setTopMember({0});
        QCOMPARE(title(), u"3 Total Members from Top Member of A - 2 levels"_s);
    }

    void theTopMembersNameIsCutAtTheFirstHyphen()
    {
        openCustom(u"Net-Sales"_s);
        setTopMember({0});
        QCOMPARE(title(), u"1 Total Members from Top Member of Ne - 1 levels"_s);
    }

    void theCopyKeepsItsTextsWhenTheTreeIsRebuilt()
    {
        openAccounts();
        setTopMember({0});
        const QString before = printed(topTree());
        click("chk_ExpAttribs");
        QCOMPARE(printed(topTree()), before);
        click("cmdRemoveTopMember");
        QVERIFY(printed(tree()).contains(u"DecPlaces="_s));
    }

    void loadingTheTreeCountsTheTopMembersLevelsFromOneAgain()
    {
        openAccounts();
        setTopMember({0});
        click("chk_ExpAttribs");
        QCOMPARE(title(), u"4 Total Members from Top Member of Net - 3 levels"_s);
        mWindow->SetTitles();
        QCOMPARE(title(), u"4 Total Members from Top Member of Net - 1 levels"_s);
    }

    void setAsTopMemberWithNothingSelectedDoesNothing()
    {
        openAccounts();
        tree()->selectionModel()->clear();
        find<QAction>("mnuTopMember")->trigger();
        QVERIFY(tree()->isVisible());
        QVERIFY(!topTree()->isVisible());
    }

    void anotherTopMemberReplacesTheFirst()
    {
        openAccounts();
        setTopMember({0});
        click("cmdRemoveTopMember");
        setTopMember({1});
        QVERIFY(printed(topTree()).startsWith(u"Tax - "_s));
        QCOMPARE(title(), u"1 Total Members from Top Member of Tax - 1 levels"_s);
    }

    void theChildrenOfANodeAreCountedIntoTheTopMembersView()
    {
        openAccounts();
        setTopMember({1});
        qint32 depth = 1;
        mWindow->EnumChildren(at(tree(), {0}), depth);
        QCOMPARE(depth, 1);
        mWindow->SetTitles();
        QCOMPARE(title(), u"4 Total Members from Top Member of Tax - 3 levels"_s);
    }

    // The entity filters.

    void onlyEntitiesShowTheFilters()
    {
        openEntities();
        QVERIFY(find<QGroupBox>("fraEntityFilters")->isVisible());
        mWindow->ShowHideFilters(u"entity"_s, false);
        QVERIFY(!find<QGroupBox>("fraEntityFilters")->isVisible());
        mWindow->ShowHideFilters(u"Entity"_s, true);
        QVERIFY(find<QGroupBox>("fraEntityFilters")->isVisible());
        mWindow->ShowHideFilters(u"ACCOUNT"_s, true);
        QVERIFY(!find<QGroupBox>("fraEntityFilters")->isVisible());
        openAccounts();
        QVERIFY(!find<QGroupBox>("fraEntityFilters")->isVisible());
        QCOMPARE(entries("cboEntityCurrencyFilter"), QStringList());
    }

    void theFilterListsOfferClassesAndCurrenciesWithNothingChosen()
    {
        openEntities();
        QCOMPARE(entries("cboEntitySecurityClassFilter"),
                 QStringList({u"ALL SECURITY CLASSES"_s, u"North"_s, u"South"_s}));
        QCOMPARE(entries("cboEntityCurrencyFilter"),
                 QStringList({u"ALL CURRENCIES"_s, u"EUR"_s, u"USD"_s}));
        QCOMPARE(find<QComboBox>("cboEntitySecurityClassFilter")->currentText(), QString());
        QCOMPARE(find<QComboBox>("cboEntityCurrencyFilter")->currentText(), QString());
        QCOMPARE(mGlobal.gSecurity, mGlobal.gSession->GetSecurity());
    }

    void everyRebuildAppendsTheSameEntriesAgain()
    {
        openEntities();
        find<QComboBox>("cboEntityCurrencyFilter")->setEditText(u"eu"_s);
        find<QComboBox>("cboEntitySecurityClassFilter")->setCurrentIndex(2);
        click("optShowAttributes_0");
        QCOMPARE(entries("cboEntityCurrencyFilter"),
                 QStringList({u"ALL CURRENCIES"_s, u"EUR"_s, u"USD"_s, u"ALL CURRENCIES"_s,
                              u"EUR"_s, u"USD"_s}));
        QCOMPARE(find<QComboBox>("cboEntitySecurityClassFilter")->count(), 6);
        QCOMPARE(find<QComboBox>("cboEntityCurrencyFilter")->currentText(), u"eu"_s);
        QCOMPARE(find<QComboBox>("cboEntitySecurityClassFilter")->currentText(), u"South"_s);
        QCOMPARE(find<QComboBox>("cboEntitySecurityClassFilter")->currentIndex(), 2);
    }

    void withEmptyFiltersEveryEntityIsListedFlat()
    {
        openEntities();
        click("optEntityFilterSwitch_0");
        QVERIFY(find<QPushButton>("cmdRerunEntityFilters")->isEnabled());
        QCOMPARE(tree()->model()->rowCount(), 4);
        QCOMPARE(printed(tree()).count(u'\n'), 4);
        QVERIFY(!printed(tree()).contains(u"  "_s));
        QVERIFY(printed(tree()).startsWith(u"Group - All (Currency=EUR, "_s));
        QCOMPARE(title(), u"4 Total Members - 1 levels"_s);
        QCOMPARE(at(tree(), {1}).data(MemberTreeModel::KeyRole).toString(), QString());
        QCOMPARE(at(tree(), {1}).data(MemberTreeModel::TagRole).toString(), QString());
        QCOMPARE(find<QComboBox>("cboEntityCurrencyFilter")->count(), 3);
    }

    void aSharedEntityIsListedOnce()
    {
        application().entity().setMembers(u"Group\n  US01\nRegion\n  US01"_s);
        open(FakeKind::Entity, u"ENTITY"_s);
        QCOMPARE(title(), u"5 Total Members - 2 levels"_s);
        click("optEntityFilterSwitch_0");
        QCOMPARE(tree()->model()->rowCount(), 3);
        QCOMPARE(title(), u"3 Total Members - 1 levels"_s);
    }

    void withAttributesHiddenAPassingEntityShowsLabelAndDescription()
    {
        openEntities();
        find<QComboBox>("cboEntityCurrencyFilter")->setEditText(u"eur"_s);
        click("optEntityFilterSwitch_0");
        click("optShowAttributes_1");
        QCOMPARE(printed(tree()), u"Group - All\nFR01 - FR\nDE01 - DE\n"_s);
        QCOMPARE(title(), u"3 Total Members - 1 levels"_s);
    }

    void theFiltersAreRunAgainAfterAnotherChoice()
    {
        openEntities();
        click("optShowAttributes_1");
        click("optEntityFilterSwitch_0");
        find<QComboBox>("cboEntityCurrencyFilter")->setCurrentIndex(2);
        QCOMPARE(tree()->model()->rowCount(), 4);
        click("cmdRerunEntityFilters");
        QCOMPARE(printed(tree()), u"US01 - US\n"_s);
        find<QComboBox>("cboEntityCurrencyFilter")->setEditText({});
        find<QComboBox>("cboEntitySecurityClassFilter")->setEditText(u"[default]"_s);
        click("cmdRerunEntityFilters");
        QCOMPARE(printed(tree()), u"Group - All\nDE01 - DE\n"_s);
    }

    void anEntryForAllMatchesNothing()
    {
        openEntities();
        find<QComboBox>("cboEntityCurrencyFilter")->setCurrentIndex(0);
        click("optEntityFilterSwitch_0");
        QCOMPARE(tree()->model()->rowCount(), 0);
        QCOMPARE(title(), u"0 Total Members - 1 levels"_s);
    }

    void theWheelOverAFilterWithoutTheFocusChangesNothing()
    {
        openEntities();
        find<QRadioButton>("optEntityFilterSwitch_1")->setFocus();
        for (const char *name : {"cboEntityCurrencyFilter", "cboEntitySecurityClassFilter"}) {
            QVERIFY(!turnWheel(find<QComboBox>(name)->lineEdit()));
            QCOMPARE(find<QComboBox>(name)->currentText(), QString());
        }
        QVERIFY(find<QRadioButton>("optEntityFilterSwitch_1")->hasFocus());
    }

    void typingAFilterChangesNothingByItself()
    {
        openEntities();
        auto *combo = find<QComboBox>("cboEntityCurrencyFilter");
        QTest::keyClicks(combo->lineEdit(), u"us"_s);
        QCOMPARE(combo->currentText(), u"us"_s);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
        QCOMPARE(combo->currentText(), u"us"_s);
        QTest::keyClicks(combo->lineEdit(), u"d"_s);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Tab);
        QCOMPARE(combo->currentText(), u"usd"_s); // the entry is "USD"
        QCOMPARE(combo->count(), 3);
        QCOMPARE(printed(tree()).count(u'\n'), 4);
    }

    void switchingTheFiltersOffShowsTheFullTreeAgain()
    {
        openEntities();
        const QString before = printed(tree());
        find<QComboBox>("cboEntityCurrencyFilter")->setEditText(u"USD"_s);
        click("optEntityFilterSwitch_0");
        click("optEntityFilterSwitch_1");
        QVERIFY(!find<QPushButton>("cmdRerunEntityFilters")->isEnabled());
        QCOMPARE(printed(tree()), before);
        QCOMPARE(find<QComboBox>("cboEntityCurrencyFilter")->count(), 6);
    }

    void theTitleKeepsTheListsCountUntilATopMemberIsSetOrRemoved()
    {
        openEntities();
        click("optEntityFilterSwitch_0");
        click("optEntityFilterSwitch_1");
        QCOMPARE(title(), u"4 Total Members - 1 levels"_s);
        setTopMember({0});
        click("cmdRemoveTopMember");
        QCOMPARE(title(), u"5 Total Members - 2 levels"_s);
    }

    void expandedAttributesWithFiltersOnRebuildTheList()
    {
        openEntities();
        find<QComboBox>("cboEntityCurrencyFilter")->setEditText(u"USD"_s);
        click("optEntityFilterSwitch_0");
        click("chk_ExpAttribs");
        QCOMPARE(tree()->model()->rowCount(), 1);
        QVERIFY(printed(tree()).contains(u"DefaultParent=Group, HierRelationship=Base"_s));
    }

    void aListedEntityCanBeTheTopMember()
    {
        openEntities();
        click("optEntityFilterSwitch_0");
        setTopMember({2});
        QCOMPARE(title(), u"1 Total Members from Top Member of FR01 - 1 levels"_s);
    }

    void aFailureWhileListingKeepsWhatWasListed()
    {
        openEntities();
        calls().fail("GetEntityCurrencyId"_L1, RuntimeError(70), 3);
        click("optEntityFilterSwitch_0");
        QCOMPARE(tree()->model()->rowCount(), 2);
        QCOMPARE(mServices->program.endCodes, QList<int>{1});
        mServices->program.endCodes.clear();
    }

    // Keyboard and accessibility.

    void theTabKeyGoesFromControlToControlAsTheyStand()
    {
        openEntities();
        click("optEntityFilterSwitch_0");
        find<QRadioButton>("optShowAttributes_0")->setFocus();
        QStringList names;
        for (int i = 0; i < 9; ++i) {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names,
                 QStringList({u"optShowAttributes_0"_s, u"chk_ExpAttribs"_s,
                              u"optEntityFilterSwitch_0"_s, u"cboEntitySecurityClassFilter"_s,
                              u"cboEntityCurrencyFilter"_s, u"cmdRerunEntityFilters"_s,
                              u"trvMembers"_s, u"txtSearch"_s, u"cmdFind"_s}));
    }

    void everyControlHasAnAccessibleName()
    {
        openEntities();
        for (const char *name : {"trvMembers", "trvTopMember", "txtSearch",
                                 "cboEntitySecurityClassFilter", "cboEntityCurrencyFilter"})
            QVERIFY2(!find<QWidget>(name)->accessibleName().isEmpty(), name);
        for (const QLabel *label : mWindow->findChildren<QLabel *>())
            if (label->text().endsWith(u':'))
                QVERIFY2(label->buddy(), qPrintable(label->text()));
    }
};

QTEST_MAIN(tst_frmMetadataViewer)
#include "tst_frmMetadataViewer.moc"
