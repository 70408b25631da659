#include "support/FakeServices.h"
#include "viewer/frmMemberTreeView.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

class tst_frmMemberTreeView : public QObject
{
    Q_OBJECT

    FakeServices mServices;
    std::unique_ptr<MemberTreeModel> mModel;
    std::unique_ptr<MemberTreeView> mView;

    void show(FakeMembers members)
    {
        FakeDimension &dimension = mServices.hfm.application().account();
        dimension.members() = std::move(members);
        MemberPaths paths;
        paths.read(dimension);
        auto tree = std::make_shared<MemberTree>();
        tree->build(paths, [&](hfm::MemberId member) {
            return dimension.GetMemberLabel(member) + u" - "_s +
                   dimension.GetMemberDescription(member, 0);
        });
        mModel->show(tree);
    }
    void show(const QString &outline) { show(FakeMembers(outline)); }
    void showChain(int length)
    {
        FakeMembers chain;
        for (int i = 0; i < length; ++i)
            chain.add(i - 1, QString::number(i));
        show(std::move(chain));
    }
    void showFlat(int count)
    {
        FakeMembers members;
        for (int i = 0; i < count; ++i)
            members.add(-1, QString::number(i));
        show(std::move(members));
    }
    QModelIndex node(qint32 number) const { return mModel->indexOf(number); }
    qint32 current() const { return mModel->node(mView->currentIndex()); }
    QPoint signOf(qint32 number) const
    {
        const QRect text = mView->visualRect(node(number));
        return {text.left() - mView->indentation() / 2, text.center().y()};
    }
    bool showsTooltip(qint32 number)
    {
        QRect row = mView->visualRect(node(number));
        row.setWidth(std::min(row.width(), 20));
        QHelpEvent event(QEvent::ToolTip, row.center(),
                         mView->viewport()->mapToGlobal(row.center()));
        QCoreApplication::sendEvent(mView->viewport(), &event);
        return QToolTip::isVisible();
    }

    static constexpr int typesOn = 3'600'000; ///< milliseconds: no pause of a test is that long
    static void setTypingPause(int milliseconds)
    {
        QApplication::setKeyboardInputInterval(milliseconds);
    }

private Q_SLOTS:
    void init()
    {
        setTypingPause(typesOn);
        mModel = std::make_unique<MemberTreeModel>();
        mView = std::make_unique<MemberTreeView>(mServices.trap, mModel.get());
        mView->resize(400, 300);
        mView->show();
        QVERIFY(QTest::qWaitForWindowExposed(mView.get()));
    }
    void cleanup()
    {
        mView.reset();
        QVERIFY(mServices.program.endCodes.isEmpty());
    }

    // Opening nodes.

    void arrowsOpenCloseAndMove()
    {
        show(u"A\n  B\n    C\nD"_s);
        mView->setCurrentIndex(node(0));
        QTest::keyClick(mView.get(), Qt::Key_Right);
        QVERIFY(mView->isExpanded(node(0)));
        QCOMPARE(current(), 0);
        QTest::keyClick(mView.get(), Qt::Key_Right);
        QCOMPARE(current(), 1);
        QTest::keyClick(mView.get(), Qt::Key_Down);
        QCOMPARE(current(), 3);
        QTest::keyClick(mView.get(), Qt::Key_Up);
        QTest::keyClick(mView.get(), Qt::Key_Left);
        QCOMPARE(current(), 0);
        QTest::keyClick(mView.get(), Qt::Key_Left);
        QVERIFY(!mView->isExpanded(node(0)));
        QTest::keyClick(mView.get(), Qt::Key_Plus);
        QVERIFY(mView->isExpanded(node(0)));
        QTest::keyClick(mView.get(), Qt::Key_Minus);
        QVERIFY(!mView->isExpanded(node(0)));
    }

    void theAsteriskOpensEverythingBelowTheCurrentNode()
    {
        show(u"A\n  B\n    C\n      D\nE\n  F"_s);
        mView->setCurrentIndex(node(0));
        QTest::keyClick(mView.get(), Qt::Key_Asterisk);
        QVERIFY(mView->isExpanded(node(0)));
        QVERIFY(mView->isExpanded(node(1)));
        QVERIFY(mView->isExpanded(node(2)));
        QVERIFY(!mView->isExpanded(node(4)));
        QVERIFY(!mView->visualRect(node(3)).isEmpty());
    }

    void aClickOnTheSignOpensAndCloses()
    {
        show(u"A\n  B\nC"_s);
        QTest::mouseClick(mView->viewport(), Qt::LeftButton, {}, signOf(0));
        QVERIFY(mView->isExpanded(node(0)));
        QTest::mouseClick(mView->viewport(), Qt::LeftButton, {}, signOf(0));
        QVERIFY(!mView->isExpanded(node(0)));
    }

    void otherButtonsLeaveTheSignAlone_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<int>("menus");
        QTest::newRow("right") << Qt::RightButton << 2;
        QTest::newRow("middle") << Qt::MiddleButton << 0;
    }
    void otherButtonsLeaveTheSignAlone()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(int, menus);
        show(u"A\n  B\nC"_s);
        mView->setCurrentIndex(node(2));
        const QSignalSpy menuRequested(mView.get(), &MemberTreeView::menuRequested);
        QTest::mouseClick(mView->viewport(), button, {}, signOf(0));
        QVERIFY(!mView->isExpanded(node(0)));
        QCOMPARE(mView->selectedNode(), node(0));
        mView->expand(node(0));
        QTest::mouseClick(mView->viewport(), button, {}, signOf(0));
        QVERIFY(mView->isExpanded(node(0)));
        QCOMPARE(menuRequested.count(), menus);
    }

    void aClosedNodeComesBackWithWhatWasOpenBelowIt_data()
    {
        QTest::addColumn<QString>("by");
        QTest::newRow("key") << u"key"_s;
        QTest::newRow("sign") << u"sign"_s;
        QTest::newRow("double click") << u"double click"_s;
    }
    void aClosedNodeComesBackWithWhatWasOpenBelowIt()
    {
        QFETCH(QString, by);
        show(u"A\n  B\n    C\n  D\nE"_s);
        mView->expandBelow({});
        mView->setCurrentIndex(node(0));
        mView->collapse(node(0));
        QVERIFY(mView->visualRect(node(2)).isEmpty());
        const QPoint text = mView->visualRect(node(0)).center();
        if (by == u"key")
            QTest::keyClick(mView.get(), Qt::Key_Right);
        else if (by == u"sign")
            QTest::mouseClick(mView->viewport(), Qt::LeftButton, {}, signOf(0));
        else
            QTest::mouseDClick(mView->viewport(), Qt::LeftButton, {}, text);
        QVERIFY(mView->isExpanded(node(0)));
        QVERIFY(!mView->visualRect(node(2)).isEmpty());
        QCOMPARE(mView->indexBelow(node(2)), node(3));
        QCOMPARE(mView->indexBelow(node(3)), node(4));
        if (by == u"double click") {
            QTest::mouseDClick(mView->viewport(), Qt::LeftButton, {}, text);
            QVERIFY(!mView->isExpanded(node(0)));
        }
    }

    void aHundredThousandOpenNodesCloseAndOpenAgain()
    {
        FakeMembers members;
        members.add(-1, u"Top"_s);
        for (int i = 0; i < 100'000; ++i)
            members.add(i % 2 == 0 ? 0 : i, QString::number(i));
        show(std::move(members));
        mView->expandBelow({});
        mView->setCurrentIndex(node(0));
        QTest::keyClick(mView.get(), Qt::Key_Left);
        QTest::keyClick(mView.get(), Qt::Key_Right);
        QTest::keyClick(mView.get(), Qt::Key_End);
        QCOMPARE(current(), 100'000);
    }

    void aDeepChainOpensAsDeepAsIsSafe()
    {
        showChain(100'000);
        mView->expandBelow({});
        const qint32 deepest = MemberTreeView::deepestExpansion;
        QCOMPARE(mView->indexBelow(node(deepest - 1)), node(deepest));
        QVERIFY(!mView->indexBelow(node(deepest)).isValid());
        mView->setCurrentIndex(node(deepest));
        QTest::keyClick(mView.get(), Qt::Key_Asterisk);
        QCOMPARE(mView->indexBelow(node(deepest)), node(deepest + 1));
        QVERIFY(!mView->indexBelow(node(deepest + 1)).isValid());
    }

    // Searching.

    void typingGoesToTheNextOpenNodeWithThatLabel()
    {
        show(u"Alpha\n  Beta\nBravo\nAlabama"_s);
        mView->setCurrentIndex(node(0));
        QTest::keyClicks(mView.get(), u"b"_s);
        QCOMPARE(current(), 2);
        mView->expandBelow({});
        mView->setCurrentIndex(node(0));
        mView->keyboardSearch(u"r"_s); // goes on: "br"
        QCOMPARE(current(), 2);
    }

    void typingLettersNarrowsTheSearchFromTheCurrentNode()
    {
        show(u"Alpha\nAlabama\nAlaska"_s);
        mView->setCurrentIndex(node(1));
        QTest::keyClicks(mView.get(), u"ALAS"_s);
        QCOMPARE(current(), 2);
    }

    void theSameLetterGoesFromOneToTheNextAndRoundAgain()
    {
        show(u"Alpha\nBeta\nAlaska\nAtlas"_s);
        mView->setCurrentIndex(node(0));
        QTest::keyClicks(mView.get(), u"a"_s);
        QCOMPARE(current(), 2);
        QTest::keyClicks(mView.get(), u"a"_s);
        QCOMPARE(current(), 3);
        QTest::keyClicks(mView.get(), u"a"_s);
        QCOMPARE(current(), 0);
    }

    void afterAPauseTheSearchStartsAfresh()
    {
        show(u"Alpha\nBravo\nAlaska"_s);
        mView->setCurrentIndex(node(2));
        setTypingPause(0);
        QTest::keyClicks(mView.get(), u"a"_s);
        QCOMPARE(current(), 0);
        QTest::keyClicks(mView.get(), u"b"_s);
        QCOMPARE(current(), 1);
    }

    void aLabelWithABlankCanBeTyped()
    {
        show(u"Newark\nNew York\nNew Zealand"_s);
        mView->setCurrentIndex(node(0));
        QTest::keyClicks(mView.get(), u"new z"_s);
        QCOMPARE(current(), 2);
    }

    void typingNothingSearchesNothing()
    {
        show(u"Alpha\nBravo"_s);
        mView->setCurrentIndex(node(1));
        mView->keyboardSearch({});
        QCOMPARE(current(), 1);
        mView->keyboardSearch(u"a"_s);
        QCOMPARE(current(), 0);
    }

    void aLabelThatIsNowhereLeavesTheCurrentNode()
    {
        show(u"Alpha|zz\n  Zeta\nBeta"_s);
        mView->setCurrentIndex(node(2));
        QTest::keyClicks(mView.get(), u"z"_s);
        QCOMPARE(current(), 2);
    }

    void theSearchStartsAtTheTopWhereTheCurrentNodeIsHidden()
    {
        show(u"Alpha\n  Zeta\nBeta"_s);
        mView->expandBelow({});
        mView->setCurrentIndex(node(1));
        mView->collapse(node(0));
        QTest::keyClicks(mView.get(), u"b"_s);
        QCOMPARE(current(), 2);
    }

    // Selecting and copying.

    void copyTakesTheTextsOfTheSelectedNodes()
    {
        show(u"A|one\n  B|two\nC|three"_s);
        mView->expandBelow({});
        mView->setCurrentIndex(node(2));
        QTest::keyClick(mView.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"C - three"_s);
        mView->selectionModel()->select(node(1), QItemSelectionModel::Select);
        QTest::keyClick(mView.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"B - two\nC - three"_s);
    }

    void copyWithNothingSelectedLeavesTheClipboard()
    {
        show(u"A|one"_s);
        QApplication::clipboard()->setText(u"before"_s);
        mView->selectionModel()->clear();
        QTest::keyClick(mView.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"before"_s);
    }

    void selectAllSelectsWhatIsOpen()
    {
        show(u"A\n  B\n    C\nD"_s);
        mView->expand(node(0));
        mView->setCurrentIndex(node(0));
        QTest::keyClick(mView.get(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(mView->selectionModel()->selectedIndexes().size(), 3);
        QTest::keyClick(mView.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"A - \nB - \nD - "_s);
    }

    void moreThanCanBeSelectedStaysUnselected()
    {
        showFlat(MemberTreeView::mostSelected + 100);
        mView->setCurrentIndex(node(0));
        QTest::keyClick(mView.get(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(mView->selectionModel()->selectedIndexes(), QModelIndexList{node(0)});
        QTest::keyClick(mView.get(), Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(mView->selectionModel()->selectedIndexes(),
                 QModelIndexList{node(MemberTreeView::mostSelected + 99)});
    }

    void asMuchAsCanBeSelectedIsSelected()
    {
        showFlat(MemberTreeView::mostSelected);
        mView->setCurrentIndex(node(0));
        QTest::keyClick(mView.get(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(mView->selectionModel()->selectedIndexes().size(), MemberTreeView::mostSelected);
        QTest::keyClick(mView.get(), Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(mView->selectionModel()->selectedIndexes().size(), MemberTreeView::mostSelected);
    }

    void theSelectedNodeIsTheCurrentOneWhileItIsSelected()
    {
        show(u"A\nB"_s);
        mView->setCurrentIndex(node(1));
        QCOMPARE(mView->selectedNode(), node(1));
        mView->selectionModel()->clearSelection();
        QVERIFY(!mView->selectedNode().isValid());
    }

    void whereTheCurrentNodeIsNotSelectedTheFirstSelectedOneCounts()
    {
        show(u"A\nB\nC\nD"_s);
        mView->setCurrentIndex(node(2));
        mView->selectionModel()->select(node(1), QItemSelectionModel::Select);
        QCOMPARE(mView->selectedNode(), node(2));
        mView->selectionModel()->setCurrentIndex(node(3), QItemSelectionModel::NoUpdate);
        QCOMPARE(mView->selectedNode(), node(1));
    }

    // Long texts.

    void aLongTextCanBeScrolledTo()
    {
        show(u"A|"_s + QString(200, u'x') + u"\nB"_s);
        QTRY_VERIFY(mView->horizontalScrollBar()->maximum() > 0);
        show(u"A\nB"_s);
        QTRY_COMPARE(mView->horizontalScrollBar()->maximum(), 0);
    }

    void aLongTextFurtherDownWidensTheViewAsItIsReached()
    {
        FakeMembers members;
        for (int i = 0; i < 100; ++i)
            members.add(-1, QString::number(i));
        members.add(-1, u"Last|"_s + QString(200, u'x'));
        show(std::move(members));
        QTRY_VERIFY(mView->verticalScrollBar()->maximum() > 0);
        QCOMPARE(mView->horizontalScrollBar()->maximum(), 0);
        mView->verticalScrollBar()->setValue(mView->verticalScrollBar()->maximum());
        QTRY_VERIFY(mView->horizontalScrollBar()->maximum() > 0);
    }

    void aTextThatIsCutOffHasATooltip()
    {
        show(u"A|"_s + QString(200, u'x') + u"\nB"_s);
        QVERIFY(!showsTooltip(1));
        QVERIFY(showsTooltip(0));
        QVERIFY(QToolTip::text().contains(QString(200, u'x')));
    }

    void aTextScrolledOutToTheLeftHasATooltip()
    {
        show(u"A|"_s + QString(200, u'x') + u"\nB"_s);
        QTRY_VERIFY(mView->horizontalScrollBar()->maximum() > 0);
        mView->horizontalScrollBar()->setValue(mView->horizontalScrollBar()->maximum());
        const QRect row = mView->visualRect(node(0));
        QVERIFY(row.left() < 0);
        const QPoint seen(5, row.center().y());
        QHelpEvent event(QEvent::ToolTip, seen, mView->viewport()->mapToGlobal(seen));
        QCoreApplication::sendEvent(mView->viewport(), &event);
        QVERIFY(event.isAccepted());
        QVERIFY(QToolTip::text().contains(QString(200, u'x')));
    }

    // Assistive tools.

    void aRowIsSpokenWithLabelLevelAndPosition()
    {
        show(u"A|one\n  B|two\n  C|three"_s);
        mView->expandBelow({});
        QAccessibleInterface *tree = QAccessible::queryAccessibleInterface(mView.get());
        QCOMPARE(tree->role(), QAccessible::Tree);
        QCOMPARE(tree->tableInterface()->rowCount(), 3);
        QAccessibleInterface *row = tree->tableInterface()->cellAt(2, 0);
        QCOMPARE(row->text(QAccessible::Name), u"C, level 2, 2 of 2"_s);
        QCOMPARE(row->text(QAccessible::Description), u"C - three"_s);
        QCOMPARE(row->role(), QAccessible::TreeItem);
    }
};

QTEST_MAIN(tst_frmMemberTreeView)
#include "tst_frmMemberTreeView.moc"
