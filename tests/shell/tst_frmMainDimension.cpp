#include "MainWindow.h"
#include "support/Wheel.h"

#include <QLineEdit>

/// Choosing a dimension and a language.
class tst_frmMainDimension : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { mMain = std::make_unique<MainWindow>(); }
    void cleanup() { mMain.reset(); }

    void choosingAnEntrySetsTheDimension()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        QCOMPARE(mMain->state.gDimensionName, latin1("ACCOUNT"));
        QCOMPARE(mMain->state.gDimension.get(), &mMain->fakes.hfm.application().account());
        QCOMPARE(mMain->enabledTools().size(), 4);
    }

    void theSameEntryChosenAgainSetsItAgain()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        mMain->state.gDimension.reset();
        mMain->chooseDimension("Account");
        QCOMPARE(mMain->state.gDimension.get(), &mMain->fakes.hfm.application().account());
    }

    void enterInTheTextSetsTheDimension()
    {
        QVERIFY(mMain->show());
        for (const char *text : {"custom2", "Custom2", "CUSTOM2"}) {
            mMain->state.gDimension.reset();
            mMain->state.gDimensionName.clear();
            mMain->fakes.hfm.calls().clear();
            mMain->typeDimension(text);
            QCOMPARE(mMain->dimensionList()->currentText(), latin1(text));
            QVERIFY(!mMain->state.gDimension);
            QTest::keyClick(mMain->dimensionList(), Qt::Key_Return);
            QCOMPARE(mMain->state.gDimensionName, latin1("CUSTOM2"));
            QCOMPARE(mMain->state.gDimension.get(), &mMain->fakes.hfm.application().custom(2));
            QCOMPARE(mMain->fakes.hfm.calls().made(), QStringList{latin1("GetCustom2Dimension")});
        }
        QVERIFY(mMain->fakes.prompts.asked.isEmpty());
    }

    void aTypedTextThatIsNoDimensionGivesTheMessage()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Year");
        const QStringList toolsBefore = mMain->enabledTools();
        mMain->typeDimension("Accounts");
        QTest::keyClick(mMain->dimensionList(), Qt::Key_Return);
        QCOMPARE(mMain->fakes.prompts.asked,
                 (QList<Prompt>{{latin1("Error Setting Dimension"),
                                 latin1("Unable to set dimension to 'Accounts'."),
                                 Prompt::Icon::Critical, Prompt::Buttons::Ok}}));
        QCOMPARE(mMain->state.gDimensionName, latin1("YEAR"));
        QCOMPARE(mMain->state.gDimension.get(),
                 &mMain->fakes.hfm.application().dimension(FakeKind::Year));
        QCOMPARE(mMain->enabledTools(), toolsBefore);
        QCOMPARE(mMain->dimensionList()->currentText(), latin1("Accounts"));
    }

    void leavingTheTextIsNoChoice()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Year");
        mMain->typeDimension("Entity");
        QTest::keyClick(mMain->dimensionList(), Qt::Key_Tab);
        QVERIFY(!mMain->dimensionList()->hasFocus());
        QCOMPARE(mMain->state.gDimensionName, latin1("YEAR"));
    }

    void theWheelOverAListWithoutTheFocusChoosesNothing()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Year");
        mMain->button("cmdExit")->setFocus();
        QVERIFY(!turnWheel(mMain->dimensionList()->lineEdit()));
        QCOMPARE(mMain->dimensionList()->currentText(), latin1("Year"));
        QCOMPARE(mMain->state.gDimensionName, latin1("YEAR"));
        QVERIFY(!turnWheel(mMain->languageList()));
        QCOMPARE(mMain->state.gLanguageIndex, qint16(0));
        QVERIFY(mMain->button("cmdExit")->hasFocus());
    }

    void nothingIsInsertedIntoTheList()
    {
        QVERIFY(mMain->show());
        mMain->typeDimension("Accounts");
        QTest::keyClick(mMain->dimensionList(), Qt::Key_Return);
        QCOMPARE(mMain->dimensionList()->count(), 12);
        QCOMPARE(mMain->dimensionList()->findText(latin1("Accounts")), -1);
    }

    void withEntityTheMemberListBuilderIsOff()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Entity");
        QCOMPARE(mMain->enabledTools(),
                 (QStringList{latin1("cmdApplicationInfo"), latin1("cmdExtractMetadata"),
                              latin1("cmdMetadataViewer")}));
    }

    void anotherDimensionTurnsTheMemberListBuilderOnAgain()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Entity");
        mMain->chooseDimension("ICP");
        QVERIFY(mMain->button("cmdMemberListBuilder")->isEnabled());
    }

    void aLanguagesPositionIsItsIndex()
    {
        QVERIFY(mMain->show());
        MainWindow::choose(mMain->languageList(), "German");
        QCOMPARE(mMain->state.gLanguageIndex, qint16(1));
        MainWindow::choose(mMain->languageList(), "English");
        QCOMPARE(mMain->state.gLanguageIndex, qint16(0));
    }

private:
    std::unique_ptr<MainWindow> mMain;
};

QTEST_MAIN(tst_frmMainDimension)
#include "tst_frmMainDimension.moc"
