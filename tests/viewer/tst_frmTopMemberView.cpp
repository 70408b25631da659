#include "viewer/ViewerWindow.h"

/// The viewer's top-member view.
class tst_frmTopMemberView : public QObject, ViewerWindow
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { close(); }

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
        QVERIFY(tree()->hasFocus());
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

    void theTopMembersTreeHasTheFocusAndItsTopIsCurrent()
    {
        openAccounts();
        setTopMember({0, 0});
        QVERIFY(topTree()->hasFocus());
        QCOMPARE(topTree()->currentIndex(), at(topTree(), {0}));
        QVERIFY(topTree()->selectionModel()->isSelected(at(topTree(), {0})));
    }

    void aLongNameWidensNoWindow()
    {
        openCustom(u"A\n"_s + QString(500, u'x'));
        setTopMember({0});
        QCoreApplication::processEvents();
        const int least = mWindow->minimumSizeHint().width();
        click("cmdRemoveTopMember");
        setTopMember({1});
        QCoreApplication::processEvents();
        QVERIFY(title().contains(QString(500, u'x')));
        QCOMPARE(mWindow->minimumSizeHint().width(), least);
        QCOMPARE(mWindow->width(), 940);
    }
};

QTEST_MAIN(tst_frmTopMemberView)
#include "tst_frmTopMemberView.moc"
