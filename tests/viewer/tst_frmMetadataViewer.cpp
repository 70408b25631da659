#include "viewer/ViewerWindow.h"

#include "support/CursorLog.h"

#include <QSignalSpy>
#include <QStatusBar>

/// The viewer's window: opening it, rebuilding its tree, its keys.
class tst_frmMetadataViewer : public QObject, ViewerWindow
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { close(); }

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

    void theHeadingIsTheDimensionsOwnName()
    {
        open(FakeKind::Account, u"SCENARIO"_s);
        QCOMPARE(find<QLabel>("lblDimension")->text(), u"ACCOUNT Dimension"_s);
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

    void theExpandedAttributesAreOffBeforeTheTreeIsRebuilt()
    {
        openAccounts();
        click("chk_ExpAttribs");
        calls().fail("EnumChildMembers"_L1, RuntimeError(70));
        click("optShowAttributes_1");
        QCOMPARE(shownError(), 70);
        QVERIFY(!find<QCheckBox>("chk_ExpAttribs")->isChecked());
        QVERIFY(!find<QCheckBox>("chk_ExpAttribs")->isEnabled());
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

    void expandAllShowsTheHourglass()
    {
        openAccounts();
        const CursorLog log(mWindow.get());
        click("cmdExpandAll");
        QCOMPARE(log.shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::ArrowCursor}));
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
