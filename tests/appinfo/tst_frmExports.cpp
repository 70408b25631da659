#include "appinfo/MemberListExport.h"
#include "appinfo/SecurityExport.h"
#include "OpenWindow.h"
#include "support/Errors.h"

using namespace Qt::StringLiterals;

/// The exports of the "Member Lists" tab and of the switched-off "Security" tab, by their buttons
/// and beneath them.
class tst_frmExports : public QObject
{
    Q_OBJECT

    static constexpr int securityTab = 0;
    static constexpr int memberListsTab = 2;

    std::unique_ptr<OpenWindow> mOpen;

    FakeSpreadsheet &spreadsheet() { return mOpen->fakes.spreadsheet; }
    FakePrompts &prompts() { return mOpen->fakes.prompts; }
    Qt::CursorShape pointer() const { return mOpen->window->cursor().shape(); }

    void openLists()
    {
        FakeDimension &entity = mOpen->dimension(FakeKind::Entity);
        entity.setMembers(u"P\n  =1+1\n  Q\n    12\n    'B\nR\n"_s);
        entity.addUserList(u"Europe"_s, {u"=1+1"_s, u"Q"_s, u"12"_s, u"'B"_s});
        entity.addUserList(u"Empty"_s, {});
        mOpen->open(memberListsTab);
    }
    void openSecurity()
    {
        FakeSecurity &security = *mOpen->fakes.hfm.application().security;
        security.addClass(u"SC_FIN"_s);
        security.addRole(u"Administrator"_s);
        security.addRole(u"Default"_s);
        security.addUser(u"CORP\\jsmith"_s);
        security.setRole(u"CORP\\jsmith"_s, u"Administrator"_s);
        security.setAccess(u"CORP\\jsmith"_s, u"SC_FIN"_s, 2);
        mOpen->open(securityTab);
        TabControls::setLines(list("lstUsers"), {u"CORP\\jsmith"_s});
        TabControls::setLines(list("lstRoles"), {u"Administrator"_s, u"Default"_s});
    }
    QListView *list(const char *name) const { return mOpen->control<QListView>(name); }
    void clickRow(const char *name, int row)
    {
        const QModelIndex entry = list(name)->model()->index(row, 0);
        QTest::mouseClick(list(name)->viewport(), Qt::LeftButton, {},
                          list(name)->visualRect(entry).center());
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
    static Prompt complete()
    {
        return {u"Excel Export"_s, u"Excel Export Complete.\r\n\r\nPress Ok to view Excel file."_s,
                Prompt::Icon::Information, Prompt::Buttons::Ok};
    }
    static Prompt nothingToPrint()
    {
        return {u"Send to Excel Error"_s,
                u"Nothing to print to Excel.  Please choose from the security list boxes above."_s,
                Prompt::Icon::Exclamation, Prompt::Buttons::Ok};
    }

private Q_SLOTS:
    void init() { mOpen = std::make_unique<OpenWindow>(); }
    void cleanup() { mOpen.reset(); }

    // Member lists.

    void withoutATopMemberTheFirstMemberLandsInRowThree()
    {
        openLists();
        mOpen->choose("cboEntityLists", u"Europe"_s);
        mOpen->click("cmdSendListToExcel");
        QCOMPARE(spreadsheet().writes(),
                 QStringList({
                     u"(1, 1) = 'Entity list  EUROPE  -  4 members (** denotes parent member)"_s,
                     u"(3, 1) = '=1+1"_s,
                     u"(4, 1) = 'Q **"_s,
                     u"(5, 1) = '12"_s,
                     u"(6, 1) = ''B"_s,
                 }));
        QCOMPARE(prompts().asked, QList<Prompt>{complete()});
    }

    void withATopMemberTheFirstMemberLandsInRowFour()
    {
        openLists();
        mOpen->dimension(FakeKind::Account).setMembers(u"Sales\n  Net\n"_s);
        mOpen->choose("cboAccountLists", u"[Base]"_s);
        mOpen->choose("cboParentMembers", u"Sales"_s);
        mOpen->click("cmdSendListToExcel");
        QCOMPARE(spreadsheet().writes(),
                 QStringList({
                     u"(1, 1) = 'Account list  [BASE]  -  1 members (** denotes parent member)"_s,
                     u"(2, 1) = 'Top Member Set To:  SALES"_s,
                     u"(4, 1) = 'Net"_s,
                 }));
    }

    void anEmptyListProducesTheHeadingRowOnly()
    {
        openLists();
        mOpen->choose("cboEntityLists", u"Empty"_s);
        mOpen->click("cmdSendListToExcel");
        QCOMPARE(spreadsheet().writes(),
                 QStringList{u"(1, 1) = 'Entity list   (** denotes parent member)"_s});
    }

    void anEmptyListWithATopMemberProducesItsRowToo()
    {
        FakeSpreadsheet program;
        const auto application = program.createApplication();
        MemberListExport::write(application->addWorkbook().addWorksheet(), u"Entity list  "_s,
                                u"Straße"_s, {});
        QCOMPARE(program.writes(),
                 QStringList({u"(1, 1) = 'Entity list   (** denotes parent member)"_s,
                              u"(2, 1) = 'Top Member Set To:  STRASSE"_s}));
    }

    void noListChosenYetExportsTheEmptyHeading()
    {
        openLists();
        mOpen->click("cmdSendListToExcel");
        QCOMPARE(spreadsheet().writes(), QStringList{u"(1, 1) = ' (** denotes parent member)"_s});
        QCOMPARE(spreadsheet().stepsButCells(), allSteps());
    }

    void theListsStepsComeInTheirOrderWithTheMessageBeforeVisible()
    {
        openLists();
        mOpen->choose("cboEntityLists", u"Europe"_s);
        QStringList stepsWhileAsking;
        prompts().whileAsking = [&] { stepsWhileAsking = spreadsheet().stepsButCells(); };
        mOpen->click("cmdSendListToExcel");
        QCOMPARE(stepsWhileAsking, allSteps().first(4));
        QCOMPARE(spreadsheet().stepsButCells(), allSteps());
    }

    void theListsHourglassStandsUntilTheEnd()
    {
        openLists();
        Qt::CursorShape whileAsking = Qt::ArrowCursor;
        prompts().whileAsking = [&] { whileAsking = pointer(); };
        mOpen->click("cmdSendListToExcel");
        QCOMPARE(whileAsking, Qt::WaitCursor);
        QCOMPARE(pointer(), Qt::ArrowCursor);
    }

    void aFailingListExportEndsTheProgramAndLeavesTheHourglass()
    {
        openLists();
        mOpen->choose("cboEntityLists", u"Europe"_s);
        spreadsheet().failingStep = u"complete"_s;
        spreadsheet().failure = RuntimeError::naming(DiskFull, u"/x"_s);
        mOpen->click("cmdSendListToExcel");
        QCOMPARE(mOpen->lastMessage(), u"Run-time error '61':\r\n\r\nDisk full: /x"_s);
        QCOMPARE(prompts().asked.size(), 1);
        QVERIFY(!spreadsheet().steps.contains(u"visible"_s));
        QCOMPARE(mOpen->fakes.program.endCodes, QList<int>{1});
        QCOMPARE(pointer(), Qt::WaitCursor);
    }

    void moreRowsThanARowCounterHoldsOverflow()
    {
        const auto errorAt = [](qsizetype members) {
            FakeSpreadsheet program;
            const auto application = program.createApplication();
            Worksheet &sheet = application->addWorkbook().addWorksheet();
            const auto error = errorOf(
                [&] { MemberListExport::write(sheet, {}, {}, QStringList(members, u"A"_s)); });
            return error ? error->number() : 0;
        };
        QCOMPARE(errorAt(32'765), 0); // the last one is in row 32,767
        QCOMPARE(errorAt(32'766), qint32(Overflow));
    }

    // Security.

    void withoutAnAnswerTheWarningShowsAndNoSpreadsheetIsCreated()
    {
        openSecurity();
        TabControls::setLines(list("lstTemp2"), {u"left over"_s});
        Qt::CursorShape whileAsking = Qt::ArrowCursor;
        prompts().whileAsking = [&] { whileAsking = pointer(); };
        mOpen->click("cmdSendToExcel");
        QCOMPARE(prompts().asked, QList<Prompt>{nothingToPrint()});
        QCOMPARE(spreadsheet().steps, QStringList());
        QCOMPARE(whileAsking, Qt::WaitCursor);
        QCOMPARE(pointer(), Qt::ArrowCursor);
    }

    void anAnswerInTwoColumnsFillsTheFirstAndThenTheThird()
    {
        openSecurity();
        clickRow("lstUsers", 0);
        mOpen->click("cmdSendToExcel");
        QCOMPARE(spreadsheet().writes(),
                 QStringList({
                     u"(1, 1) = User/Group CORP\\jsmith Role Access:"_s,
                     u"(2, 1) = Administrator"_s,
                     u"(1, 3) = User/Group CORP\\jsmith Security Class Access:"_s,
                     u"(2, 3) = SC_FIN - READONLY"_s,
                 }));
        QCOMPARE(prompts().asked, QList<Prompt>{complete()});
        QCOMPARE(spreadsheet().stepsButCells(), allSteps());
        QCOMPARE(pointer(), Qt::ArrowCursor);
    }

    void anAnswerInOneColumnWritesColumnOneOnly()
    {
        openSecurity();
        clickRow("lstRoles", 0);
        mOpen->click("cmdSendToExcel");
        QCOMPARE(
            spreadsheet().writes(),
            QStringList({u"(1, 1) = User/Group Access to Administrator"_s, u"(2, 1) = jsmith"_s}));
    }

    void withAnEmptySecondBoxItsLinesAreNotWritten()
    {
        openSecurity();
        clickRow("lstRoles", 0);
        TabControls::setLines(list("lstTemp2"), {u"left over"_s});
        mOpen->click("cmdSendToExcel");
        QCOMPARE(spreadsheet().writes().size(), 2);
    }

    void aRoleWithoutMembersSendsItsSingleLine()
    {
        openSecurity();
        clickRow("lstRoles", 1);
        mOpen->click("cmdSendToExcel");
        QCOMPARE(spreadsheet().writes(), QStringList{u"(1, 1) = User/Group Access to Default"_s});
    }

    void theSecuritysMessageComesBeforeVisible()
    {
        openSecurity();
        clickRow("lstRoles", 0);
        QStringList stepsWhileAsking;
        prompts().whileAsking = [&] { stepsWhileAsking = spreadsheet().stepsButCells(); };
        mOpen->click("cmdSendToExcel");
        QCOMPARE(stepsWhileAsking, allSteps().first(4));
    }

    void theExportSendsTheLastQuestion()
    {
        openSecurity();
        clickRow("lstUsers", 0);
        clickRow("lstRoles", 1);
        mOpen->click("cmdSendToExcel");
        QCOMPARE(spreadsheet().writes(), QStringList{u"(1, 1) = User/Group Access to Default"_s});
    }

    void aMissingSpreadsheetProgramIsARunTimeError()
    {
        openSecurity();
        clickRow("lstRoles", 0);
        spreadsheet().failingStep = u"create"_s;
        spreadsheet().failure = RuntimeError(CannotCreateObject);
        mOpen->click("cmdSendToExcel");
        QCOMPARE(mOpen->lastMessage(),
                 u"Run-time error '429':\r\n\r\nActiveX component can't create object"_s);
        QCOMPARE(pointer(), Qt::WaitCursor);
    }

    void linesAreWrittenWithoutAnApostrophe()
    {
        FakeSpreadsheet program;
        const auto application = program.createApplication();
        SecurityExport::write(application->addWorkbook().addWorksheet(), {u"=1"_s}, {u"2"_s});
        QCOMPARE(program.writes(), QStringList({u"(1, 1) = =1"_s, u"(1, 3) = 2"_s}));
    }

    void aProgramThatIsEndingShowsNoSpreadsheet()
    {
        openLists();
        prompts().whileAsking = [&] { mOpen->fakes.program.end(0); };
        mOpen->click("cmdSendListToExcel");
        QVERIFY(!spreadsheet().steps.contains(u"visible"_s));
        QCOMPARE(spreadsheet().steps.last(), u"release"_s);
    }
};

QTEST_MAIN(tst_frmExports)
#include "tst_frmExports.moc"
