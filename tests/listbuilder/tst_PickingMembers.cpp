#include "BuilderWindow.h"

#include <QApplication>
#include <QLineEdit>

#include <functional>

using namespace Qt::StringLiterals;

/// Moving members from the builder window's tree and flat list into the new list.
class tst_PickingMembers : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<BuilderWindow> mBuilder;

    void open(const QString &outline)
    {
        mBuilder = std::make_unique<BuilderWindow>(outline);
        mBuilder->open();
        mBuilder->tree()->expandAll();
    }
    QStringList newList() const { return mBuilder->rows("lstMemberList"); }
    QModelIndex node(std::initializer_list<int> rows) const { return mBuilder->node(rows); }
    QModelIndex row(int row) const { return mBuilder->list("lstMetadata")->model()->index(row, 0); }

    /// The controls that get the focus while something is done, in order.
    static QStringList focusedWhile(const std::function<void()> &something)
    {
        QStringList names;
        const auto connection =
            QObject::connect(qApp, &QApplication::focusChanged, qApp, [&](QWidget *, QWidget *now) {
                if (now)
                    names.append(now->objectName());
            });
        something();
        QObject::disconnect(connection);
        return names;
    }

private Q_SLOTS:
    void init() { open(u"A|Alpha\n  S|Shared\n    X\n  Y\nB|Beta\n  S"_s); }
    void cleanup() { mBuilder.reset(); }

    // The tree.

    void aClickIntoTheBoxChecksThatNodeAlone()
    {
        mBuilder->check(node({0}));
        QVERIFY(mBuilder->isChecked(node({0})));
        for (const QModelIndex &other : {node({0, 0}), node({0, 0, 0}), node({0, 1}), node({1})})
            QVERIFY(!mBuilder->isChecked(other));
        mBuilder->check(node({0}));
        QVERIFY(!mBuilder->isChecked(node({0})));
    }

    void theSpaceKeyChecksTheSelectedNode()
    {
        mBuilder->tree()->setCurrentIndex(node({0, 1}));
        mBuilder->key("trvMembers", Qt::Key_Space);
        QVERIFY(mBuilder->isChecked(node({0, 1})));
        mBuilder->key("trvMembers", Qt::Key_Space);
        QVERIFY(!mBuilder->isChecked(node({0, 1})));
    }

    void insertAppendsTheCheckedLabelsInTheOrderOfTheNodes()
    {
        mBuilder->check(node({1}));
        mBuilder->check(node({0, 0, 0}));
        mBuilder->check(node({0}));
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList(), QStringList({u"A"_s, u"X"_s, u"B"_s}));
    }

    void aMemberUnderTwoParentsIsTwoNodesAndBothGiveARow()
    {
        QVERIFY(node({0, 0}).data(BuilderTreeModel::KeyRole) !=
                node({1, 0}).data(BuilderTreeModel::KeyRole));
        mBuilder->check(node({0, 0}));
        mBuilder->check(node({1, 0}));
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList(), QStringList({u"S"_s, u"S"_s}));
    }

    void insertingTheSameCheckedMemberTwiceGivesTwoRows()
    {
        mBuilder->check(node({0}));
        mBuilder->click("cmdTreeViewChecked");
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList(), QStringList({u"A"_s, u"A"_s}));
    }

    void insertLeavesTheChecksAndGivesTheNewListTheFocus()
    {
        mBuilder->check(node({0}));
        mBuilder->click("cmdTreeViewChecked");
        QVERIFY(mBuilder->isChecked(node({0})));
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
    }

    void insertWithNothingCheckedGivesTheNewListTheFocusToo()
    {
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList(), QStringList());
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
    }

    void checkAllAndUncheckAllReachEveryNode()
    {
        mBuilder->tree()->collapseAll();
        mBuilder->click("cmdTreeViewCheckAll");
        QVERIFY(mBuilder->isChecked(node({1, 0, 0})));
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList(), QStringList({u"A"_s, u"S"_s, u"X"_s, u"Y"_s, u"B"_s, u"S"_s, u"X"_s}));
        mBuilder->click("cmdTreeViewUncheckAll");
        QVERIFY(!mBuilder->isChecked(node({0})));
        mBuilder->click("cmdTreeViewChecked");
        QCOMPARE(newList().size(), 7);
    }

    void checkAllLeavesWhatIsOpenAndSelected()
    {
        mBuilder->tree()->collapse(node({0, 0}));
        mBuilder->tree()->setCurrentIndex(node({0, 1}));
        mBuilder->click("cmdTreeViewCheckAll");
        QVERIFY(mBuilder->tree()->isExpanded(node({0})));
        QVERIFY(!mBuilder->tree()->isExpanded(node({0, 0})));
        QCOMPARE(mBuilder->tree()->currentIndex(), node({0, 1}));
    }

    void aDoubleClickOnANodeInsertsItsBareLabel()
    {
        mBuilder->doubleClick(mBuilder->tree(), node({0, 0}));
        QCOMPARE(newList(), QStringList{u"S"_s});
        QVERIFY(mBuilder->hasFocus("lstMemberList"));
        QVERIFY(!mBuilder->isChecked(node({0, 0})));
    }

    void aDoubleClickOnANodeLeavesTheChecks()
    {
        mBuilder->check(node({0, 0}));
        mBuilder->check(node({1}));
        mBuilder->doubleClick(mBuilder->tree(), node({1}));
        mBuilder->doubleClick(mBuilder->tree(), node({0, 1}));
        QCOMPARE(newList(), QStringList({u"B"_s, u"Y"_s}));
        for (const QModelIndex &checked : {node({0, 0}), node({1})})
            QVERIFY(mBuilder->isChecked(checked));
        for (const QModelIndex &other : {node({0}), node({0, 0, 0}), node({0, 1}), node({1, 0})})
            QVERIFY(!mBuilder->isChecked(other));
    }

    void aDoubleClickOfAnotherButtonInsertsNothing()
    {
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            mBuilder->doubleClick(mBuilder->tree(), node({0, 0}), button);
            mBuilder->doubleClick(mBuilder->list("lstMetadata"), row(4), button);
        }
        QCOMPARE(newList(), QStringList());
        QVERIFY(mBuilder->tree()->isExpanded(node({0, 0})));
    }

    void aDoubleClickBesideTheNodesInsertsNothing()
    {
        const QPoint below(5, mBuilder->tree()->viewport()->height() - 5);
        QVERIFY(!mBuilder->tree()->indexAt(below).isValid());
        QTest::mouseClick(mBuilder->tree()->viewport(), Qt::LeftButton, {}, below);
        QTest::mouseDClick(mBuilder->tree()->viewport(), Qt::LeftButton, {}, below);
        QCOMPARE(newList(), QStringList());
    }

    void aLabelWithAHyphenIsWholeWhenItComesFromTheTree()
    {
        open(u"A-B|Alpha"_s);
        mBuilder->check(node({0}));
        mBuilder->click("cmdTreeViewChecked");
        mBuilder->doubleClick(mBuilder->tree(), node({0}));
        QCOMPARE(newList(), QStringList({u"A-B"_s, u"A-B"_s}));
    }

    // The flat list.

    void insertAppendsTheLabelPartOfTheSelectedRowsFromFirstToLast()
    {
        QCOMPARE(mBuilder->rows("lstMetadata"), QStringList({u"A - Alpha"_s, u"S - Shared"_s,
                                                             u"X - "_s, u"Y - "_s, u"B - Beta"_s}));
        mBuilder->select("lstMetadata", 4);
        mBuilder->select("lstMetadata", 0, Qt::ControlModifier);
        mBuilder->select("lstMetadata", 2, Qt::ControlModifier);
        mBuilder->click("cmdListSelected");
        QCOMPARE(newList(), QStringList({u"A"_s, u"X"_s, u"B"_s}));
    }

    void insertLeavesTheSelectionAndGivesTheFlatListTheFocusBack()
    {
        mBuilder->select("lstMetadata", 1);
        mBuilder->click("cmdListSelected");
        QCOMPARE(mBuilder->selected("lstMetadata"), 1);
        QVERIFY(mBuilder->hasFocus("lstMetadata"));
        mBuilder->click("cmdListSelected");
        QCOMPARE(newList(), QStringList({u"S"_s, u"S"_s}));
    }

    void theFocusPassesThroughTheNewListSoThatGenerateFollows()
    {
        mBuilder->type("txtMemberListName", u"Sales"_s);
        mBuilder->select("lstMetadata", 1);
        QVERIFY(!mBuilder->isEnabled("cmdGenerateList"));
        mBuilder->click("cmdListSelected");
        QVERIFY(mBuilder->isEnabled("cmdGenerateList"));
    }

    void aDoubleClickOnARowMovesTheFocusToTheNewListAndBack()
    {
        mBuilder->type("txtMemberListName", u"Sales"_s);
        mBuilder->select("lstMetadata", 4);
        QVERIFY(!mBuilder->isEnabled("cmdGenerateList"));
        QCOMPARE(
            focusedWhile([&] { mBuilder->doubleClick(mBuilder->list("lstMetadata"), row(4)); }),
            QStringList({u"lstMemberList"_s, u"lstMetadata"_s}));
        QVERIFY(mBuilder->isEnabled("cmdGenerateList"));
        QVERIFY(mBuilder->hasFocus("lstMetadata"));
    }

    void insertMovesTheFocusToTheNewListAndBack()
    {
        QCOMPARE(focusedWhile([&] { mBuilder->click("cmdListSelected"); }),
                 QStringList({u"cmdListSelected"_s, u"lstMemberList"_s, u"lstMetadata"_s}));
    }

    void checkingAndSelectingAllMoveTheFocusToNoList()
    {
        mBuilder->click("cmdTreeViewChecked");
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
        mBuilder->control<QLineEdit>("txtMemberListName")->setText(u"Sales"_s);
        for (const char *button : {"cmdTreeViewCheckAll", "cmdTreeViewUncheckAll",
                                   "cmdListSelectAll", "cmdListDeselectAll"}) {
            QCOMPARE(focusedWhile([&] { mBuilder->click(button); }),
                     QStringList{QString::fromLatin1(button)});
            QVERIFY2(!mBuilder->isEnabled("cmdGenerateList"), button);
        }
    }

    void insertWithNothingSelectedMovesTheFocusAllTheSame()
    {
        mBuilder->click("cmdListSelected");
        QCOMPARE(newList(), QStringList());
        QVERIFY(mBuilder->hasFocus("lstMetadata"));
    }

    void aDoubleClickOnARowInsertsIt()
    {
        mBuilder->doubleClick(mBuilder->list("lstMetadata"), row(4));
        QCOMPARE(newList(), QStringList{u"B"_s});
        QVERIFY(mBuilder->hasFocus("lstMetadata"));
        QCOMPARE(mBuilder->selected("lstMetadata"), 4);
    }

    void selectAllAndDeselectAllReachEveryRow()
    {
        mBuilder->click("cmdListSelectAll");
        QCOMPARE(mBuilder->list("lstMetadata")->selectionModel()->selectedIndexes().size(), 5);
        mBuilder->click("cmdListSelected");
        QCOMPARE(newList(), QStringList({u"A"_s, u"S"_s, u"X"_s, u"Y"_s, u"B"_s}));
        mBuilder->click("cmdListDeselectAll");
        QCOMPARE(mBuilder->selected("lstMetadata"), -1);
    }

    void rowsAreCutAtTheFirstHyphenOfTheirLabel()
    {
        open(u"A-B|Alpha\nAB-C|Beta\nN|net-net"_s);
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
        QCOMPARE(newList(), QStringList({u""_s, u"A"_s, u"N"_s}));
    }

    void aRowThatBeginsWithAHyphenEndsTheProgram()
    {
        open(u"-A|Alpha"_s);
        mBuilder->select("lstMetadata", 0);
        mBuilder->click("cmdListSelected");
        QCOMPARE(mBuilder->fake.prompts.asked.value(0).text,
                 u"Run-time error '5':\r\n\r\nInvalid procedure call or argument"_s);
        QCOMPARE(mBuilder->fake.program.endCodes, QList<int>{1});
    }

    void pickingAsksHfmForNothing()
    {
        mBuilder->fake.hfm.calls().clear();
        mBuilder->click("cmdTreeViewCheckAll");
        mBuilder->click("cmdTreeViewChecked");
        mBuilder->click("cmdListSelectAll");
        mBuilder->click("cmdListSelected");
        QCOMPARE(mBuilder->fake.hfm.calls().made(), QStringList());
    }
};

QTEST_MAIN(tst_PickingMembers)
#include "tst_PickingMembers.moc"
