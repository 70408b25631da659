#include "shell/frmTabControls.h"
#include "support/Wheel.h"

#include <QAccessible>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_frmTabControls : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QWidget> mTab;

private Q_SLOTS:
    void init() { mTab = std::make_unique<QWidget>(); }

    void controlsHaveTheirNamesAndAreSpokenWithoutMarks()
    {
        const auto *button = TabControls::makeButton(mTab.get(), "cmdGo", u"&Go on"_s);
        QCOMPARE(button->objectName(), u"cmdGo"_s);
        QCOMPARE(button->text(), u"&Go on"_s);
        QCOMPARE(button->accessibleName(), u"Go on"_s);
        QLabel *label = TabControls::makeLabel(mTab.get(), "lblLists", u"ACCOUNT &Lists:"_s);
        const auto *combo = TabControls::makeList(label, "cboLists");
        QCOMPARE(combo->objectName(), u"cboLists"_s);
        QCOMPARE(combo->accessibleName(), u"ACCOUNT Lists"_s);
        QCOMPARE(label->buddy(), combo);
    }

    void aLabelIsPlainText()
    {
        const auto *label = TabControls::makeLabel(mTab.get(), "lblName", u"<b>x</b>"_s);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text(), u"<b>x</b>"_s);
    }

    void aHeadingIsABoldLabel()
    {
        const auto *heading = TabControls::makeHeading(mTab.get(), "lblDimension");
        QCOMPARE(heading->objectName(), u"lblDimension"_s);
        QVERIFY(heading->font().bold());
        QCOMPARE(heading->textFormat(), Qt::PlainText);
    }

    void aLongTextInTheStatusPanelDoesNotWidenTheBar()
    {
        QStatusBar bar;
        QLabel *panel = TabControls::makeStatusPanel(&bar);
        QCOMPARE(bar.objectName(), u"sbStatusBar"_s);
        QCOMPARE(panel->objectName(), u"sbStatusBar_1"_s);
        const int before = bar.minimumSizeHint().width();
        panel->setText(QString(500, u'x'));
        QCOMPARE(bar.minimumSizeHint().width(), before);
    }

    void optionsOfAGroupAreNumberedFromZeroWithNoneChosen()
    {
        const QButtonGroup *group =
            TabControls::makeOptionGroup(mTab.get(), "optColour", {u"&Red"_s, u"&Blue"_s});
        QCOMPARE(group->parent(), mTab.get());
        QCOMPARE(group->buttons().size(), 2);
        QCOMPARE(group->checkedId(), -1);
        for (QAbstractButton *option : group->buttons())
            option->setParent(mTab.get());
        QCOMPARE(group->button(1)->objectName(), u"optColour_1"_s);
        QCOMPARE(group->button(1)->text(), u"&Blue"_s);
        QCOMPARE(group->button(1)->accessibleName(), u"Blue"_s);
    }

    void aCheckBoxStartsUnticked()
    {
        const auto *box = TabControls::makeCheckBox(mTab.get(), "chkAll", u"&All"_s);
        QCOMPARE(box->objectName(), u"chkAll"_s);
        QCOMPARE(box->accessibleName(), u"All"_s);
        QVERIFY(!box->isChecked());
    }

    void noEntryIsChosenUntilOneIs()
    {
        QLabel *label = TabControls::makeLabel(mTab.get(), "lblLists", u"Lists:"_s);
        auto *combo = TabControls::makeList(label, "cboLists");
        TabControls::setEntries(combo, {u"A"_s, u"B"_s}, -1);
        QCOMPARE(combo->currentText(), QString());
        TabControls::setEntries(combo, {u"C"_s}, 0);
        QCOMPARE(combo->currentText(), u"C"_s);
    }

    void theWheelChoosesNothingInABoxWithoutTheFocus_data()
    {
        QTest::addColumn<bool>("isTyped");
        QTest::newRow("a plain list") << false;
        QTest::newRow("a typed list") << true;
    }

    void theWheelChoosesNothingInABoxWithoutTheFocus()
    {
        QFETCH(bool, isTyped);
        auto *other = TabControls::makeButton(mTab.get(), "cmdGo", u"Go"_s);
        QLabel *label = TabControls::makeLabel(mTab.get(), "lblLists", u"Lists:"_s);
        auto *combo = isTyped ? TabControls::makeTypedList(label, "cboLists")
                              : TabControls::makeList(label, "cboLists");
        TabControls::setEntries(combo, {u"A"_s, u"B"_s, u"C"_s}, 0);
        const QSignalSpy chosen(combo, &QComboBox::activated);
        mTab->show();
        QVERIFY(QTest::qWaitForWindowActive(mTab.get()));
        other->setFocus();

        QWidget *const under = isTyped ? static_cast<QWidget *>(combo->lineEdit()) : combo;
        QVERIFY(!turnWheel(under)); // what the box stands in would have scrolled
        QCOMPARE(combo->currentText(), u"A"_s);
        QCOMPARE(chosen.size(), 0);
        QVERIFY(other->hasFocus());

        combo->setFocus();
        QVERIFY(turnWheel(under));
        QCOMPARE(combo->currentText(), u"B"_s);
        QCOMPARE(chosen.size(), 1);
    }

    void theLongestRowCanBeScrolledToWhereverItStands_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("first") << 0;
        QTest::newRow("in the middle") << 500;
        QTest::newRow("last") << 999;
    }

    void theLongestRowCanBeScrolledToWhereverItStands()
    {
        QFETCH(int, place);
        QListView *list = TabControls::makeListBox(mTab.get(), "lstRows", u"Rows"_s);
        QStringList rows(1000, u"short"_s);
        rows[place] = QString(200, u'W');
        TabControls::setLines(list, rows);
        list->resize(200, 200);
        mTab->show();
        const int width = list->fontMetrics().horizontalAdvance(rows[place]);
        const QScrollBar *bar = list->horizontalScrollBar();
        QVERIFY(bar->maximum() + list->viewport()->width() >= width);
        TabControls::setLines(list, {u"short"_s});
        QTRY_COMPARE(bar->maximum(), 0);
    }

    void allRowsAreOfOneHeight()
    {
        QListView *list = TabControls::makeListBox(mTab.get(), "lstRows", u"Rows"_s);
        TabControls::setLines(list, {u"one"_s, u"two\nlines"_s, QString()});
        list->resize(200, 200);
        mTab->show();
        const auto height = [&](int row) {
            return list->visualRect(list->model()->index(row, 0)).height();
        };
        QVERIFY(height(0) > 0);
        QCOMPARE(height(1), height(0));
        QCOMPARE(height(2), height(0));
    }
};

QTEST_MAIN(tst_frmTabControls)
#include "tst_frmTabControls.moc"
