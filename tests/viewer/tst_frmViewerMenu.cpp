#include "viewer/ViewerWindow.h"

/// The viewer's right-click menu.
class tst_frmViewerMenu : public QObject, ViewerWindow
{
    Q_OBJECT

    static void pressMenuKey(QTreeView *view)
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QCursor::pos());
        QCoreApplication::sendEvent(view, &event);
    }

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { close(); }

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
        pressMenuKey(tree());
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
        pressMenuKey(tree());
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

    void theMiddleButtonOpensNoMenu()
    {
        openAccounts();
        QTest::mouseClick(tree()->viewport(), Qt::MiddleButton, {},
                          tree()->visualRect(at(tree(), {1})).center());
        QVERIFY(!menu()->isVisible());
    }

    void theMenuKeyOpensTheMenuWhereTheSelectedNodeIs()
    {
        openAccounts();
        mWindow->resize(600, 500);
        tree()->setCurrentIndex(at(tree(), {1}));
        tree()->selectionModel()->setCurrentIndex(at(tree(), {0}), QItemSelectionModel::NoUpdate);
        pressMenuKey(tree());
        QVERIFY(menu()->isVisible());
        QCOMPARE(tree()->indexAt(tree()->viewport()->mapFromGlobal(menu()->pos())),
                 at(tree(), {1}));
    }

    void theMenuIsAboutTheSelectedNodeWhicheverIsClicked()
    {
        openAccounts();
        tree()->setCurrentIndex(at(tree(), {0}));
        QTest::mouseClick(tree()->viewport(), Qt::RightButton, Qt::ControlModifier,
                          tree()->visualRect(at(tree(), {1})).center());
        QCOMPARE(tree()->selectionModel()->selectedIndexes(), QModelIndexList{at(tree(), {0})});
        QVERIFY(menu()->isVisible());
        find<QAction>("mnuTopMember")->trigger();
        QVERIFY(printed(topTree()).startsWith(u"Net - "_s));
    }

    void theRightButtonOnASignSelectsTheNodeForTheMenu()
    {
        openAccounts();
        tree()->setCurrentIndex(at(tree(), {1}));
        const QRect text = tree()->visualRect(at(tree(), {0}));
        QTest::mouseClick(tree()->viewport(), Qt::RightButton, {},
                          QPoint(text.left() - tree()->indentation() / 2, text.center().y()));
        QVERIFY(menu()->isVisible());
        QVERIFY(!tree()->isExpanded(at(tree(), {0})));
        find<QAction>("mnuTopMember")->trigger();
        QVERIFY(printed(topTree()).startsWith(u"Net - "_s));
    }

    void theTopMembersTreeGoesByItsOwnSelection()
    {
        openAccounts();
        setTopMember({0});
        topTree()->selectionModel()->clear();
        QVERIFY(tree()->selectionModel()->hasSelection());
        pressMenuKey(topTree());
        QVERIFY(!menu()->isVisible());
        tree()->selectionModel()->clear();
        topTree()->setCurrentIndex(at(topTree(), {0}));
        pressMenuKey(topTree());
        QVERIFY(menu()->isVisible());
    }
};

QTEST_MAIN(tst_frmViewerMenu)
#include "tst_frmViewerMenu.moc"
