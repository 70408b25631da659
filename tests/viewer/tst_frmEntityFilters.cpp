#include "support/CursorLog.h"
#include "support/Wheel.h"
#include "viewer/ViewerWindow.h"

/// The viewer's entity filters.
class tst_frmEntityFilters : public QObject, ViewerWindow
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { close(); }

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

    void theListIsEmptyBeforeTheEntitiesAreAskedFor()
    {
        openEntities();
        calls().fail("EnumAllMembers"_L1, RuntimeError(70));
        click("optEntityFilterSwitch_0");
        QCOMPARE(shownError(), 70);
        QCOMPARE(tree()->model()->rowCount(), 0);
    }

    void theFiltersCanBeRunAgainOnceTheListStands()
    {
        openEntities();
        calls().fail("EnumAllMembers"_L1, RuntimeError(70));
        click("optEntityFilterSwitch_0");
        QCOMPARE(shownError(), 70);
        QVERIFY(!find<QPushButton>("cmdRerunEntityFilters")->isEnabled());
        click("optEntityFilterSwitch_0");
        QVERIFY(find<QPushButton>("cmdRerunEntityFilters")->isEnabled());
        calls().fail("EnumChildMembers"_L1, RuntimeError(70));
        click("optEntityFilterSwitch_1");
        QCOMPARE(shownError(), 70);
        QVERIFY(find<QPushButton>("cmdRerunEntityFilters")->isEnabled());
    }

    void theHourglassShowsWhileTheFiltersAreSwitchedOrRunAgain()
    {
        openEntities();
        for (const char *button :
             {"optEntityFilterSwitch_0", "cmdRerunEntityFilters", "optEntityFilterSwitch_1"}) {
            const CursorLog log(mWindow.get());
            click(button);
            QCOMPARE(log.shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::ArrowCursor}));
        }
    }

    void aBlankClassIsNotTheDefaultOne()
    {
        openEntities();
        application().security->addClass(u" "_s);
        application().entity().entity(u"DE01"_s).securityClass = 2;
        click("optShowAttributes_1");
        find<QComboBox>("cboEntitySecurityClassFilter")->setEditText(u"[Default]"_s);
        click("optEntityFilterSwitch_0");
        QCOMPARE(printed(tree()), u"Group - All\n"_s);
    }
};

QTEST_MAIN(tst_frmEntityFilters)
#include "tst_frmEntityFilters.moc"
