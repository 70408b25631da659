#include "support/FakeServices.h"
#include "viewer/frmMetadataViewer.h"

#include <QAbstractButton>
#include <QAction>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

/// The viewer's "Send to Excel", by its button.
class tst_frmTreeExport : public QObject
{
    Q_OBJECT

    std::unique_ptr<FakeServices> mServices;
    modGlobal mGlobal;
    std::unique_ptr<frmMetadataViewer> mWindow;

    FakeSpreadsheet &spreadsheet() { return mServices->spreadsheet; }
    FakePrompts &prompts() { return mServices->prompts; }

    void open(FakeKind kind, const QString &name, const QString &outline)
    {
        FakeDimension &dimension = *mServices->hfm.application().dimensions[size_t(kind)];
        dimension.setMembers(outline);
        mGlobal.gDimension = mServices->hfm.application().dimensions[size_t(kind)];
        mGlobal.gDimensionName = name;
        mWindow = std::make_unique<frmMetadataViewer>(mServices->services, mGlobal);
        mWindow->setAttribute(Qt::WA_DeleteOnClose, false);
        mWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(mWindow.get()));
    }
    void openCustom(const QString &outline) { open(FakeKind::Custom1, u"CUSTOM1"_s, outline); }

    template <typename Widget>
    Widget *find(const char *name)
    {
        auto *widget = mWindow->findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no %s", name);
        return widget;
    }
    void click(const char *name)
    {
        auto *button = find<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    void setTopMember(const QList<int> &way)
    {
        auto *tree = find<QTreeView>("trvMembers");
        QModelIndex index;
        for (const int row : way)
            index = tree->model()->index(row, 0, index);
        tree->setCurrentIndex(index);
        find<QAction>("mnuTopMember")->trigger();
    }
    QStringList titles() const
    {
        QStringList titles;
        for (const Prompt &prompt : mServices->prompts.asked)
            titles.append(prompt.title);
        return titles;
    }

    static QStringList allSteps()
    {
        return {u"create Excel.Application"_s,
                u"add workbook"_s,
                u"add worksheet"_s,
                u"complete"_s,
                u"visible"_s,
                u"release"_s};
    }

private Q_SLOTS:
    void init()
    {
        mServices = std::make_unique<FakeServices>();
        mGlobal = {};
        mGlobal.gSession = mServices->hfm.openSession();
        mGlobal.gMetadata = mGlobal.gSession->GetMetadata();
    }
    void cleanup()
    {
        mWindow.reset();
        mServices.reset();
    }

    void theButtonIsOn()
    {
        openCustom(u"A"_s);
        QVERIFY(find<QAbstractButton>("cmdSendToExcel")->isEnabled());
    }

    void yesWritesTheAttributes()
    {
        openCustom(u"A|a\n  B|b"_s);
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().rows(),
                 QStringList({u"Level 1|Level 2||Description|UD1| UD2| UD3| Security"_s,
                              u"A|||a|UD1=| UD2=| UD3=| Security=[Default]"_s,
                              u"|B||b|UD1=| UD2=| UD3=| Security=[Default]"_s}));
        QCOMPARE(titles(), QStringList({u"Print Attributes"_s, u"Excel Export"_s}));
    }

    void noLeavesThemOut()
    {
        openCustom(u"A|a\n  B|b"_s);
        prompts().answers = {Prompts::Answer::No};
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().rows(),
                 QStringList({u"Level 1|Level 2||Description"_s, u"A|||a"_s, u"|B||b"_s}));
    }

    void withTheAttributesHiddenNothingIsAskedAndNoneIsWritten()
    {
        openCustom(u"A|a (x)"_s);
        click("optShowAttributes_1");
        click("cmdSendToExcel");
        QCOMPARE(titles(), QStringList{u"Excel Export"_s});
        QCOMPARE(spreadsheet().rows(), QStringList({u"Level 1||Description"_s, u"A||a (x)"_s}));
    }

    void theSpreadsheetIsOpenedAfterTheQuestion()
    {
        openCustom(u"A|a"_s);
        QList<QStringList> stepsWhileAsking;
        prompts().whileAsking = [&] { stepsWhileAsking.append(spreadsheet().stepsButCells()); };
        click("cmdSendToExcel");
        QCOMPARE(stepsWhileAsking, QList<QStringList>({{}, allSteps().first(4)}));
        QCOMPARE(spreadsheet().stepsButCells(), allSteps());
    }

    void theMessageComesFirstThenTheSpreadsheetIsVisible()
    {
        openCustom(u"A|a"_s);
        click("cmdSendToExcel");
        QCOMPARE(prompts().asked.last(),
                 (Prompt{u"Excel Export"_s,
                         u"Excel Export Complete.\r\n\r\nPress Ok to view Excel file."_s,
                         Prompt::Icon::Information, Prompt::Buttons::Ok}));
        QCOMPARE(spreadsheet().steps.last(2), QStringList({u"visible"_s, u"release"_s}));
    }

    void theHourglassStandsUntilTheEnd()
    {
        openCustom(u"A|a\n  B|b"_s);
        QList<Qt::CursorShape> shapes;
        prompts().whileAsking = [&] { shapes.append(mWindow->cursor().shape()); };
        click("cmdSendToExcel");
        QCOMPARE(shapes, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::WaitCursor}));
        QCOMPARE(mWindow->cursor().shape(), Qt::ArrowCursor);
    }

    void theWholeTreeIsExpanded()
    {
        openCustom(u"A|a\n  B|b\n    C|c"_s);
        auto *tree = find<QTreeView>("trvMembers");
        QVERIFY(!tree->isExpanded(tree->model()->index(0, 0)));
        click("cmdSendToExcel");
        const QModelIndex first = tree->model()->index(0, 0);
        QVERIFY(tree->isExpanded(first));
        QVERIFY(tree->isExpanded(tree->model()->index(0, 0, first)));
    }

    void theTopMemberViewIsExportedWhenItShows()
    {
        openCustom(u"T|t\n  A|a (x)\n    B|b\n  C|c\n    D|d\n      E|e"_s);
        setTopMember({0, 0});
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().rows(),
                 QStringList({u"Level 1|Level 2||Description|||x) (UD1| UD2| UD3| Security"_s,
                              u"A|||a|||x) (UD1=| UD2=| UD3=| Security=[Default]"_s,
                              u"|B||b|||UD1=| UD2=| UD3=| Security=[Default]"_s}));
        auto *top = find<QTreeView>("trvTopMember");
        QVERIFY(top->isExpanded(top->model()->index(0, 0)));
    }

    void aRebuildBehindTheTopMemberViewLeavesOneLevelColumn()
    {
        openCustom(u"T|t\n  A|a\n    B|b"_s);
        setTopMember({0, 0});
        click("chk_ExpAttribs");
        prompts().answers = {Prompts::Answer::No};
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().rows(),
                 QStringList({u"Level 1||Description"_s, u"A||a"_s, u"|B|b"_s}));
    }

    void theHeaderIsWrittenBeforeTheTreeIsExpanded()
    {
        openCustom(u"A|a\n  B|b"_s);
        spreadsheet().failingStep = u"cells(1, 4)"_s;
        spreadsheet().failure = RuntimeError(1004, u"Excel"_s, u"No."_s);
        click("cmdSendToExcel");
        QCOMPARE(mServices->program.endCodes, QList<int>{1});
        auto *tree = find<QTreeView>("trvMembers");
        QVERIFY(!tree->isExpanded(tree->model()->index(0, 0)));
    }

    void theFullTreeIsExportedAgainWhenTheTopMemberIsRemoved()
    {
        openCustom(u"T|t\n  A|a"_s);
        setTopMember({0, 0});
        click("cmdRemoveTopMember");
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().rows().size(), 3);
    }

    void theFilteredEntityListHasEveryNodeAtLevelOne()
    {
        mServices->hfm.application().value().setMembers(u"EUR"_s);
        open(FakeKind::Entity, u"ENTITY"_s, u"Group|All\n  US01|US"_s);
        click("optEntityFilterSwitch_0");
        prompts().answers = {Prompts::Answer::No};
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().rows(),
                 QStringList({u"Level 1||Description"_s, u"Group||All"_s, u"US01||US"_s}));
    }

    void anUnsupportedDimensionExportsItsEmptyTree()
    {
        open(FakeKind::Scenario, u"SCENARIO"_s, u"Actual"_s);
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().writes(), QStringList{u"(1, 2) = 'Description"_s});
        QCOMPARE(spreadsheet().stepsButCells(), allSteps());
    }

    void aFailingCellEndsTheProgramWithNothingShown()
    {
        openCustom(u"A|a\n  B|b"_s);
        spreadsheet().failingStep = u"cells(3, 2)"_s;
        spreadsheet().failure = RuntimeError(1004, u"Excel"_s, u"No."_s);
        click("cmdSendToExcel");
        QCOMPARE(prompts().asked.last().text, u"Run-time error '1004':\r\n\r\nNo."_s);
        QCOMPARE(titles().filter(u"Excel Export"_s), QStringList());
        QVERIFY(!spreadsheet().steps.contains(u"visible"_s));
        QCOMPARE(spreadsheet().steps.last(), u"release"_s);
        QCOMPARE(mServices->program.endCodes, QList<int>{1});
        QCOMPARE(mWindow->cursor().shape(), Qt::WaitCursor);
    }

    void aMissingSpreadsheetProgramIsARunTimeErrorAfterTheQuestion()
    {
        openCustom(u"A|a"_s);
        spreadsheet().failingStep = u"create"_s;
        spreadsheet().failure = RuntimeError(CannotCreateObject);
        click("cmdSendToExcel");
        QCOMPARE(titles(), QStringList({u"Print Attributes"_s, u"Tessaly"_s}));
        QCOMPARE(prompts().asked.last().text,
                 u"Run-time error '429':\r\n\r\nActiveX component can't create object"_s);
    }

    void eachExportStartsItsOwnApplication()
    {
        openCustom(u"A|a"_s);
        click("cmdSendToExcel");
        click("cmdSendToExcel");
        QCOMPARE(spreadsheet().stepsButCells(), allSteps() + allSteps());
    }
};

QTEST_MAIN(tst_frmTreeExport)
#include "tst_frmTreeExport.moc"
