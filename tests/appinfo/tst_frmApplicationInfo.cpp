#include "OpenWindow.h"
#include "support/Wheel.h"

#include <QAction>
#include <QGroupBox>
#include <QMenu>
#include <QStatusBar>

#include <new>

using namespace Qt::StringLiterals;

namespace {

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

/// What the window holds, and how it is loaded.
class tst_frmApplicationInfo : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OpenWindow> mOpen;

    template <typename Control>
    Control *control(const char *name) const
    {
        return mOpen->control<Control>(name);
    }
    QString panel() const { return control<QLabel>("sbStatusBar_1")->text(); }

private Q_SLOTS:
    void init() { mOpen = std::make_unique<OpenWindow>(); }
    void cleanup() { mOpen.reset(); }

    // What stands in the window.

    void theSixTabsStandInThisOrder()
    {
        mOpen->open();
        QCOMPARE(mOpen->window->objectName(), u"frmApplicationInfo"_s);
        QCOMPARE(mOpen->window->windowTitle(), u"Tessaly - Application Information"_s);
        QStringList captions;
        for (int tab = 0; tab < mOpen->tabs()->count(); ++tab)
            captions.append(mOpen->tabs()->tabText(tab));
        QCOMPARE(captions, QStringList({u"&Security"_s, u"Shared &Members"_s, u"Member &Lists "_s,
                                        u"*Base Member &Compare "_s, u"&Duplicates Below Parent"_s,
                                        u"S&tatistics"_s}));
    }

    void everyCaptionIsToTheLetter_data()
    {
        QTest::addColumn<QString>("caption");
        const auto row = [](const char *name, const char *caption) {
            QTest::newRow(name) << latin1(caption);
        };
        row("lblUsers", "Users/Groups:");
        row("lblRoles", "Roles:");
        row("lblSecurityClasses", "Classes:");
        row("cmdSendToExcel", "Send to E&xcel -->");
        row("lblDenoteParentSharedMembers", "Member (Parent)  -  ** Denotes Parent Member");
        row("lblAccountLists", "Account Lists:");
        row("lblEntityLists", "Entity Lists:");
        row("lblCustom1Lists", "Custom1 Lists:");
        row("lblCustom2Lists", "Custom2 Lists:");
        row("lblCustom3Lists", "Custom3 Lists:");
        row("lblCustom4Lists", "Custom4 Lists:");
        row("lblScenarioLists", "Scenario Lists:");
        row("lblYearLists", "Year Lists:");
        row("lblPeriodLists", "Period Lists:");
        row("lblICPLists", "ICP Lists:");
        row("lblValueLists", "Value Lists:");
        row("lblViewLists", "View Lists:");
        row("lblTopMember", "Top Member:");
        row("lblMembersInList", "");
        row("lblDenote", "** Denotes Parent Member");
        row("cmdSendListToExcel", "Send to E&xcel -->");
        row("lblTopMember1", "Base Members FROM Parent:");
        row("lblTopMember2", "Base Members TO Parent:");
        row("cmdCompare", "  <-----  Compare  ----->   ");
        row("lblDuplicatesBelowParent", "Choose a parent member for a list of duplicate children:");
        row("lblNote", "** Reminder:  Counts include system members like currencies in Custom1 and "
                       "Custom2 and ownership/system members in Accounts");
        row("lblParentChildrenCheck", "Number of Children to Check for per Parent Entity:");
        row("txtParentChildrenCheck", "200");
    }
    void everyCaptionIsToTheLetter()
    {
        mOpen->open();
        auto *found = control<QWidget>(QTest::currentDataTag());
        QVERIFY(found);
        QTEST(found->property("text").toString(), "caption");
    }

    void theOptionButtonsOfEachArrayAreThese_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<QString>("captions");
        const QString forward = u"Accounts Entities Custom1 Custom2 Custom3 Custom4"_s;
        const QString backward = u"Custom4 Custom3 Custom2 Custom1 Entities Accounts"_s;
        QTest::newRow("optDimension") << 0 << forward;
        QTest::newRow("optDimensionCompare") << 0 << forward + u' ' + backward;
        QTest::newRow("optDimensionStats") << 12 << forward;
    }
    void theOptionButtonsOfEachArrayAreThese()
    {
        QFETCH(const int, first);
        mOpen->open();
        QStringList captions;
        for (int index = first;; ++index) {
            const QString name = latin1(QTest::currentDataTag()) + u'_' + QString::number(index);
            auto *option = mOpen->window->findChild<QRadioButton *>(name);
            if (!option)
                break;
            QVERIFY(!option->isChecked());
            captions.append(option->text());
        }
        QTEST(captions.join(u' '), "captions");
    }

    void theFramesHoldTheirTabs()
    {
        mOpen->open();
        const auto *shared = control<QGroupBox>("frmSharedMembers");
        QCOMPARE(shared->title(), u" Shared Member Information "_s);
        QVERIFY(shared->findChild<QWidget *>(u"txtSharedMembers"_s));
        const auto *statistics = control<QGroupBox>("frmStatistics");
        QCOMPARE(statistics->title(), u" Statistics "_s);
        QVERIFY(statistics->findChild<QWidget *>(u"txtStatistics"_s));
    }

    void everyLabelOfAControlIsItsBuddy()
    {
        mOpen->open();
        const QList<std::pair<const char *, const char *>> pairs = {
            {"lblUsers", "lstUsers"},
            {"lblRoles", "lstRoles"},
            {"lblSecurityClasses", "lstSecurityClasses"},
            {"lblDenoteParentSharedMembers", "txtSharedMembers"},
            {"lblAccountLists", "cboAccountLists"},
            {"lblViewLists", "cboViewLists"},
            {"lblTopMember", "cboParentMembers"},
            {"lblTopMember1", "cboTopMember1"},
            {"lblTopMember2", "cboTopMember2"},
            {"lblDuplicatesBelowParent", "cboParents"},
            {"lblParentChildrenCheck", "txtParentChildrenCheck"}};
        for (const auto &[label, buddy] : pairs) {
            QVERIFY2(control<QWidget>(buddy), buddy);
            QCOMPARE(control<QLabel>(label)->buddy(), control<QWidget>(buddy));
        }
    }

    void everyControlHasAnAccessibleName()
    {
        mOpen->open();
        int controls = 0;
        const QList<QWidget *> widgets = mOpen->window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            const QString name = widget->objectName();
            const bool isControl = name.startsWith(u"opt") || name.startsWith(u"cbo") ||
                                   name.startsWith(u"cmd") || name.startsWith(u"lst") ||
                                   name.startsWith(u"txt") || name.startsWith(u"sstab");
            if (!isControl || widget->parentWidget()->objectName() == u"fraFind")
                continue; // a text box finds words with controls of its own
            ++controls;
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(name));
        }
        QCOMPARE(controls, 24 + 16 + 3 + 6 + 7 + 1);
    }

    void theListsThatCanBeTypedIntoAreThese()
    {
        mOpen->open();
        for (const char *typed : {"cboTopMember1", "cboTopMember2", "cboParents"})
            QVERIFY2(mOpen->box(typed)->isEditable(), typed);
        for (const char *chosen : {"cboAccountLists", "cboViewLists", "cboParentMembers"})
            QVERIFY2(!mOpen->box(chosen)->isEditable(), chosen);
    }

    void theWheelOverAListWithoutTheFocusChoosesNothing()
    {
        mOpen->dimension(FakeKind::Entity).setMembers(u"P\n  Q\n    A\n"_s);
        mOpen->open(2);
        mOpen->choose("cboEntityLists", u"[Base]"_s);
        mOpen->tabs()->setCurrentIndex(3);
        mOpen->click("optDimensionCompare_10");
        const QList<QComboBox *> boxes = mOpen->window->findChildren<QComboBox *>();
        int tried = 0;
        for (QComboBox *box : boxes) {
            mOpen->tabs()->setCurrentIndex(box->objectName() == u"cboParents"              ? 4
                                           : box->objectName().startsWith(u"cboTopMember") ? 3
                                                                                           : 2);
            mOpen->tabs()->setFocus();
            mOpen->calls().clear();
            const int before = box->currentIndex();
            QVERIFY2(box->isVisible() && before + 1 < box->count(), qPrintable(box->objectName()));
            QVERIFY(!turnWheel(box->isEditable() ? static_cast<QWidget *>(box->lineEdit()) : box));
            QCOMPARE(box->currentIndex(), before);
            QCOMPARE(mOpen->calls().made(), QStringList());
            QVERIFY(!box->hasFocus());
            ++tried;
        }
        QCOMPARE(tried, 16);
        QVERIFY(mOpen->isWell());
    }

    void theListsSpreadsheetButtonIsOnAndTheSecuritysOffWithItsTab()
    {
        mOpen->open();
        QVERIFY(control<QPushButton>("cmdSendListToExcel")->isEnabled());
        QVERIFY(!control<QPushButton>("cmdSendToExcel")->isEnabled());
        mOpen->tabs()->setTabEnabled(0, true);
        QVERIFY(control<QPushButton>("cmdSendToExcel")->isEnabled());
    }

    void theLinesForTheSpreadsheetAreHidden()
    {
        mOpen->open(0);
        QVERIFY(control<QWidget>("txtTemp")->isVisible());
        QVERIFY(control<QWidget>("txtTemp2")->isVisible());
        QVERIFY(!control<QWidget>("lstTemp")->isVisible());
        QVERIFY(!control<QWidget>("lstTemp2")->isVisible());
    }

    void theWindowFitsASmallScreen()
    {
        mOpen->open();
        const QSize most(1024, 720);
        QCOMPARE(mOpen->window->size().boundedTo(most), mOpen->window->size());
        QCOMPARE(mOpen->window->minimumSizeHint().boundedTo(most),
                 mOpen->window->minimumSizeHint());
    }

    // The keyboard.

    void theMnemonicsOfTheTabsBringThemToTheFront()
    {
        mOpen->open();
        const QList<std::pair<Qt::Key, int>> keys = {{Qt::Key_L, 2}, {Qt::Key_C, 3},
                                                     {Qt::Key_D, 4}, {Qt::Key_T, 5},
                                                     {Qt::Key_M, 1}, {Qt::Key_S, 1}};
        for (const auto &[key, tab] : keys) {
            QTest::keyClick(mOpen->window.get(), key, Qt::AltModifier);
            QCOMPARE(mOpen->tabs()->currentIndex(), tab);
        }
    }

    void theKeyboardWalksThroughATabInOrder_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QStringList>("order");
        QTest::newRow("shared members")
            << 1 << u"optDimension_0"_s << QStringList{u"txtSharedMembers"_s};
        QTest::newRow("member lists")
            << 2 << u"cboAccountLists"_s
            << QStringList{u"cboEntityLists"_s,  u"cboCustom1Lists"_s, u"cboCustom2Lists"_s,
                           u"cboCustom3Lists"_s, u"cboCustom4Lists"_s, u"cboScenarioLists"_s,
                           u"cboYearLists"_s,    u"cboPeriodLists"_s,  u"cboValueLists"_s,
                           u"cboICPLists"_s,     u"cboViewLists"_s,    u"cboParentMembers"_s,
                           u"lstMembersInList"_s};
        QTest::newRow("compare") << 3 << u"optDimensionCompare_6"_s
                                 << QStringList{u"cboTopMember1"_s, u"cmdCompare"_s,
                                                u"cboTopMember2"_s, u"txtMissingBaseMembers"_s};
        QTest::newRow("duplicates")
            << 4 << u"optDimensionCompare_0"_s
            << QStringList{u"cboParents"_s, u"txtDuplicatesUnderSameParent"_s};
        QTest::newRow("statistics") << 5 << u"optDimensionStats_12"_s
                                    << QStringList{u"txtParentChildrenCheck"_s, u"txtStatistics"_s};
    }
    void theKeyboardWalksThroughATabInOrder()
    {
        QFETCH(const int, tab);
        QFETCH(const QString, first);
        QFETCH(const QStringList, order);
        mOpen->open(tab);
        auto *start = mOpen->window->findChild<QWidget *>(first);
        if (auto *option = qobject_cast<QRadioButton *>(start))
            option->setChecked(true); // of buttons without a choice each is a stop of its own
        start->setFocus();
        QStringList walked;
        for (int i = 0; i < order.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            walked.append(QApplication::focusWidget()->objectName());
        }
        QCOMPARE(walked, order);
    }

    // Loading.

    void loadingHidesTheRolesMenu()
    {
        mOpen->open();
        auto *menu = control<QMenu>("mnuRoles");
        QCOMPARE(menu->title(), u"Security Roles"_s);
        QVERIFY(!menu->menuAction()->isVisible());
        QVERIFY(!menu->isVisible());
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().first()->objectName(), u"mnuRoleAccess"_s);
        QCOMPARE(menu->actions().first()->text(), u"Show All Users with Access"_s);
    }

    void loadingSwitchesTheSecurityTabOffAndBringsSharedMembersToTheFront()
    {
        frmApplicationInfo window(mOpen->fakes.services, mOpen->state);
        auto *tabs = window.findChild<QTabWidget *>(u"sstabApplicationInfo"_s);
        QVERIFY(!tabs->isTabEnabled(0));
        QVERIFY(tabs->isTabVisible(0));
        QCOMPARE(tabs->currentIndex(), 1);
        for (const QString &list : {u"lstUsers"_s, u"lstRoles"_s, u"lstSecurityClasses"_s})
            QCOMPARE(window.findChild<QListView *>(list)->model()->rowCount(), 0);
    }

    void loadingReadsTheListNamesOfTheTwelveDimensionsAndNothingElse()
    {
        frmApplicationInfo window(mOpen->fakes.services, mOpen->state);
        QStringList expected;
        for (const QString &word :
             {u"Account"_s, u"Entity"_s, u"Custom1"_s, u"Custom2"_s, u"Custom3"_s, u"Custom4"_s,
              u"Scenario"_s, u"Year"_s, u"Period"_s, u"Value"_s, u"ICP"_s, u"View"_s})
            expected += {u"Get"_s + word + u"Dimension"_s, u"EnumMemberListNames"_s};
        QCOMPARE(mOpen->calls().made(), expected);
    }

    void loadingFillsTheTwelveListBoxes()
    {
        for (int kind = 0; kind < fakeKindCount; ++kind)
            mOpen->dimension(FakeKind(kind)).clearLists();
        mOpen->dimension(FakeKind::Account).addSystemList(u"[Hierarchy]"_s, {});
        mOpen->dimension(FakeKind::Account).addSystemList(u"[System]"_s, {});
        mOpen->dimension(FakeKind::Entity).addSystemList(u"[Base]"_s, {});
        mOpen->dimension(FakeKind::Entity).addUserList(u"Europe"_s, {});
        mOpen->dimension(FakeKind::View).addUserList(u"Mine"_s, {});
        mOpen->open();
        QVERIFY(mOpen->isWell());
        QCOMPARE(mOpen->entries("cboAccountLists"), QStringList());
        QCOMPARE(mOpen->entries("cboEntityLists"), QStringList({u"[Base]"_s, u"Europe"_s}));
        QCOMPARE(mOpen->entries("cboViewLists"), QStringList{u"Mine"_s});
        QCOMPARE(mOpen->entries("cboICPLists"), QStringList());
        QCOMPARE(mOpen->box("cboEntityLists")->currentIndex(), -1);
        QCOMPARE(mOpen->box("cboEntityLists")->currentText(), QString());
    }

    void loadingLeavesViewAsTheCurrentDimensionAndTheNameAsItWas()
    {
        mOpen->open();
        QCOMPARE(mOpen->state.gDimension->GetDimensionName(), u"View"_s);
        QCOMPARE(mOpen->state.gDimensionName, u"PERIOD"_s);
    }

    void theStatusBarNamesTheApplication()
    {
        mOpen->state.gApplicationName = u"P&L <b>2012</b>"_s;
        mOpen->open();
        QCOMPARE(panel(), u"Application: P&L <b>2012</b>"_s);
        QCOMPARE(control<QLabel>("sbStatusBar_1")->textFormat(), Qt::PlainText);
        QVERIFY(control<QStatusBar>("sbStatusBar"));
    }

    void aFailureWhileTheListNamesAreReadIsToldAndTheWindowStaysWithWhatItHas()
    {
        mOpen->calls().fail("EnumMemberListNames"_L1,
                            RuntimeError(5, u"HFM"_s, u"The server is gone."_s), 3);
        mOpen->open();
        const Prompt expected{u"Tessaly"_s,
                              u"Error Encountered in PopulateMemberListNames:\rError#: 5\r"
                              "Error Desc: The server is gone.\rError Source: HFM\r\r"
                              "Please stop and restart Tessaly"_s,
                              Prompt::Icon::Critical, Prompt::Buttons::Ok};
        QCOMPARE(mOpen->fakes.prompts.asked, QList<Prompt>{expected});
        QVERIFY(!mOpen->fakes.program.isEnding());
        QVERIFY(mOpen->window->isVisible());
        QVERIFY(mOpen->box("cboEntityLists")->count() > 0);
        QCOMPARE(mOpen->box("cboCustom1Lists")->count(), 0);
        QCOMPARE(mOpen->box("cboViewLists")->count(), 0);
        QCOMPARE(panel(), QString());
    }

    void aLoadThatFailsStillHasSecurityOffAndSharedMembersInFront()
    {
        mOpen->calls().fail({}, RuntimeError(5));
        frmApplicationInfo window(mOpen->fakes.services, mOpen->state);
        QCOMPARE(mOpen->fakes.prompts.asked.size(), 1);
        const auto *tabs = window.findChild<QTabWidget *>(u"sstabApplicationInfo"_s);
        QVERIFY(!tabs->isTabEnabled(0));
        QCOMPARE(tabs->currentIndex(), 1);
        QVERIFY(!window.findChild<QMenu *>(u"mnuRoles"_s)->menuAction()->isVisible());
    }

    void aLoadThatRunsOutOfMemoryTellsItLikeAnyError()
    {
        mOpen->calls().whileCalling = [] { throw std::bad_alloc(); };
        mOpen->open();
        QCOMPARE(mOpen->fakes.prompts.asked.size(), 1);
        QCOMPARE(mOpen->lastMessage(), u"Error Encountered in PopulateMemberListNames:\rError#: 7\r"
                                       "Error Desc: Out of memory\rError Source: Tessaly\r\r"
                                       "Please stop and restart Tessaly"_s);
        QVERIFY(!mOpen->fakes.program.isEnding());
    }

    void withoutAnApplicationTheLoadTellsThatNoObjectIsSet()
    {
        mOpen->state.gMetadata.reset();
        mOpen->open();
        QCOMPARE(mOpen->lastMessage(),
                 u"Error Encountered in PopulateMemberListNames:\rError#: 91\r"
                 "Error Desc: Object variable or With block variable not set\r"
                 "Error Source: Tessaly\r\rPlease stop and restart Tessaly"_s);
        QVERIFY(!mOpen->fakes.program.isEnding());
    }
};

QTEST_MAIN(tst_frmApplicationInfo)
#include "tst_frmApplicationInfo.moc"
