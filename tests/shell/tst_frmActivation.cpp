#include "MainWindow.h"

#include "runtime/dlgPrompts.h"
#include "shell/frmAbout.h"

#include <QMessageBox>
#include <QTimer>

namespace {

/// As the desktop tells the program which of its windows is the active one; null: none of them.
void activate(QWidget *window)
{
    QApplication::setActiveWindow(window);
    QCoreApplication::processEvents();
}

} // namespace

/// When the main window applies the text of its dimension list.
class tst_frmActivation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { mMain = std::make_unique<MainWindow>(); }
    void cleanup() { mMain.reset(); }

    void theFirstShowingAppliesTheText()
    {
        mMain->load();
        mMain->dimensionList()->setEditText(latin1("Entity"));
        QVERIFY(mMain->show());
        QTRY_COMPARE(mMain->state.gDimensionName, latin1("ENTITY"));
        QVERIFY(mMain->button("cmdExtractMetadata")->isEnabled());
        QVERIFY(!mMain->button("cmdMemberListBuilder")->isEnabled());
    }

    void anEmptyTextDoesNothing()
    {
        QVERIFY(mMain->show());
        QCoreApplication::processEvents();
        QVERIFY(!mMain->state.gDimension);
        QVERIFY(mMain->fakes.prompts.asked.isEmpty());
    }

    void comingBackFromAToolAppliesTheText()
    {
        showWithTool();
        mMain->dimensionList()->setEditText(latin1("year"));
        activate(tool());
        QCOMPARE(mMain->state.gDimensionName, latin1("ACCOUNT"));
        activate(mMain->window);
        QCOMPARE(mMain->state.gDimensionName, latin1("YEAR"));
    }

    void aToolThatReplacedTheDimensionGetsItBack()
    {
        showWithTool();
        mMain->state.gDimension = mMain->state.gMetadata->GetPeriodDimension();
        activate(mMain->window);
        QCOMPARE(mMain->state.gDimension.get(), &mMain->fakes.hfm.application().account());
    }

    void closingAToolAppliesTheText()
    {
        showWithTool();
        mMain->dimensionList()->setEditText(latin1("Year"));
        tool()->close();
        activate(nullptr);
        activate(mMain->window);
        QCOMPARE(mMain->state.gDimensionName, latin1("YEAR"));
    }

    void comingBackFromTheAboutWindowAppliesTheText()
    {
        QVERIFY(mMain->show());
        mMain->dimensionList()->setEditText(latin1("Year"));
        QTimer::singleShot(
            0, this, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
        mMain->control<QAction>("mnuHelpAbout")->trigger();
        activate(mMain->window);
        QCOMPARE(mMain->state.gDimensionName, latin1("YEAR"));
    }

    void aLogonLeavesTheDimensionUntilTheNextActivation()
    {
        showWithTool();
        activate(mMain->window);
        const FakeDimension &before = mMain->fakes.hfm.application().account();
        const auto kept = mMain->state.gDimension;
        QCOMPARE(kept.get(), &before);
        mMain->fakes.hfm.newApplication();
        mMain->click("cmdLogon");
        QCOMPARE(mMain->state.gDimension, kept);
        activate(tool());
        activate(mMain->window);
        QCOMPARE(mMain->state.gDimension.get(), &mMain->fakes.hfm.application().account());
    }

    void comingBackFromAnotherProgramIsNoActivation()
    {
        QVERIFY(mMain->show());
        mMain->dimensionList()->setEditText(latin1("Year"));
        activate(nullptr);
        activate(mMain->window);
        QVERIFY(!mMain->state.gDimension);
    }

    void comingBackFromAMessageBoxIsNoActivation()
    {
        QVERIFY(mMain->show());
        mMain->dimensionList()->setEditText(latin1("Year"));
        QMessageBox box(mMain->window);
        box.open();
        activate(&box);
        box.close();
        activate(mMain->window);
        QVERIFY(!mMain->state.gDimension);
    }

    void openingAListOrAMenuIsNoActivation()
    {
        showWithTool();
        activate(mMain->window);
        mMain->fakes.hfm.calls().clear();
        mMain->languageList()->showPopup();
        activate(mMain->languageList()->view()->window());
        mMain->languageList()->hidePopup();
        activate(mMain->window);
        QCOMPARE(mMain->fakes.hfm.calls().made(), QStringList());
    }

    void theMessageOfAnActivationDoesNotShowItselfForEver()
    {
        FakeServices &fakes = mMain->fakes;
        dlgPrompts prompts(fakes.program);
        Services services{fakes.hfm,   prompts,       fakes.launcher, fakes.spreadsheet,
                          fakes.clock, fakes.program, fakes.trap,     fakes.services.programFolder};
        mMain->window = new frmMain(mMain->state, services, mMain->allTools());
        QVERIFY(mMain->show());
        QStringList messages;
        QTimer answering;
        connect(&answering, &QTimer::timeout, this, [&] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                messages.append(box->text());
                box->accept();
            }
        });
        answering.start(0);
        mMain->click("cmdApplicationInfo");
        activate(tool());
        mMain->dimensionList()->setEditText(latin1("Accounts"));
        activate(mMain->window);
        QTRY_VERIFY(!messages.isEmpty());
        for (int i = 0; i < 3; ++i) {
            activate(nullptr);
            activate(mMain->window);
        }
        QCOMPARE(messages, QStringList{latin1("Unable to set dimension to 'Accounts'.")});
        delete mMain->window; // its services end here
    }

    void aTextThatIsNoDimensionGivesTheMessageAtEachActivation()
    {
        showWithTool();
        mMain->dimensionList()->setEditText(latin1("Accounts"));
        for (int times = 1; times <= 2; ++times) {
            activate(tool());
            activate(mMain->window);
            QCOMPARE(mMain->fakes.prompts.asked.size(), times);
            QCOMPARE(mMain->fakes.prompts.asked.last().text,
                     latin1("Unable to set dimension to 'Accounts'."));
        }
        QCOMPARE(mMain->state.gDimensionName, latin1("ACCOUNT"));
    }

    void withoutMetadataAnActivationEndsTheProgram()
    {
        mMain->fakes.hfm.logonAnswers() = {false};
        mMain->fakes.prompts.answers = {Prompts::Answer::No};
        mMain->load();
        mMain->fakes.prompts.asked.clear();
        mMain->dimensionList()->setEditText(latin1("Entity"));
        QVERIFY(mMain->show());
        QTRY_COMPARE(mMain->fakes.program.endCodes, QList<int>{1});
        QCOMPARE(mMain->fakes.prompts.asked.size(), 1);
        QCOMPARE(mMain->fakes.prompts.asked[0].text,
                 latin1("Run-time error '91':\r\n\r\nObject variable or With block variable not "
                        "set"));
    }

private:
    QWidget *tool() { return mMain->tools[0]->window(); }
    /// With "Account" chosen and a tool open and active.
    void showWithTool()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        mMain->click("cmdApplicationInfo");
        activate(tool());
    }

    std::unique_ptr<MainWindow> mMain;
};

QTEST_MAIN(tst_frmActivation)
#include "tst_frmActivation.moc"
