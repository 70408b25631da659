#include "extract/frmDrvDirFil.h"
#include "extract/frmExtract.h"
#include "shell/frmLargeText.h"
#include "support/FakeServices.h"

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString fourNames = u"PARENT_LABEL,PARENT_DESCRIPTION,CHILD_LABEL,CHILD_DESCRIPTION"_s;
const QString plainRows = u"\"\",\"\",\"A\",\"Alpha\"\r\n\"A\",\"Alpha\",\"B\",\"Beta\"\r\n"_s;
const QString markedRows =
    u"\"\",\"\",\"A\",\"Alpha\",\"Dynamic\"\r\n\"A\",\"Alpha\",\"B\",\"Beta\",\"Store\"\r\n"_s;

/// Notes the pointers that a widget is given, each as often as it changes.
class PointerSpy final : public QObject
{
public:
    explicit PointerSpy(QWidget *widget) : QObject(widget) { widget->installEventFilter(this); }

    QList<Qt::CursorShape> shapes;

    bool eventFilter(QObject *widget, QEvent *event) override
    {
        if (event->type() == QEvent::CursorChange) {
            const Qt::CursorShape shape = static_cast<QWidget *>(widget)->cursor().shape();
            if (shapes.isEmpty() || shapes.last() != shape)
                shapes.append(shape);
        }
        return false;
    }
};

} // namespace

class tst_frmExtract : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir mFolder;
    std::unique_ptr<FakeServices> mFake;
    std::unique_ptr<modGlobal> mGlobal;
    QPointer<frmExtract> mWindow;

    template <typename Control>
    Control *control(const char *name) const
    {
        return mWindow->findChild<Control *>(QString::fromLatin1(name));
    }

    FakeDimension &account() { return mFake->hfm.application().account(); }
    QString shown() const { return control<LargeTextView>("txtParentChild")->text(); }

    void open()
    {
        mWindow = new frmExtract(mFake->services, *mGlobal);
        mWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(mWindow));
    }

    void click(const char *name)
    {
        auto *button = control<QAbstractButton>(name);
        QVERIFY2(button, name);
        // Check boxes and option buttons are wider than what reacts to the mouse.
        const QPoint inside(button->height() / 2, button->height() / 2);
        QTest::mouseClick(button, Qt::LeftButton, {}, inside);
    }

    void altKey(Qt::Key key) { QTest::keyClick(mWindow, key, Qt::AltModifier); }

private Q_SLOTS:
    void init()
    {
        mFake = std::make_unique<FakeServices>();
        mFake->services.programFolder = mFolder.path();
        mGlobal = std::make_unique<modGlobal>();
        account().setMembers(u"A|Alpha|Erste\n  B|Beta|Zweite"_s);
        mGlobal->gDimension = mFake->hfm.application().dimensions[size_t(FakeKind::Account)];
        mGlobal->gDimensionName = u"ACCOUNT"_s;
        mGlobal->gApplicationName = u"Comma & <b>Co</b>"_s;
        open();
    }

    void cleanup() { delete mWindow; }

    // The window as it opens.

    void captionsAreThose_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::newRow("run") << u"cmdExtract"_s << u"Run &Extract"_s;
        QTest::newRow("use") << u"optUseIndicators_0"_s << u"&Use Indicators"_s;
        QTest::newRow("don't use") << u"optUseIndicators_1"_s << u"&Don't Use Indicators"_s;
        QTest::newRow("save") << u"cmdSaveExtract"_s << u"&Save"_s;
        QTest::newRow("header row") << u"chkHeaderRow"_s << u"Show &Header Row"_s;
        QTest::newRow("comma") << u"optDelimeter_0"_s << u"C&omma"_s;
        QTest::newRow("tab") << u"optDelimeter_1"_s << u"&Tab"_s;
        QTest::newRow("parent") << u"lblParentIndicator"_s << u"Parent Indicator:"_s;
        QTest::newRow("base") << u"lblChildIndicator"_s << u"Base Indicator:"_s;
        QTest::newRow("delimiter") << u"lblDelimeter"_s << u"Delimeter:"_s;
        QTest::newRow("dimension") << u"lblDimension"_s << u"Account Dimension"_s;
        QTest::newRow("panel") << u"sbStatusBar_1"_s << u"Application: Comma & <b>Co</b>"_s;
        QTest::newRow("close") << u"mnuClose"_s << u"&Close"_s;
        QTest::newRow("exit") << u"mnuExit"_s << u"&Exit Tessaly"_s;
    }

    void captionsAreThose()
    {
        QFETCH(QString, name);
        const auto *object = mWindow->findChild<QObject *>(name);
        QVERIFY(object);
        QTEST(object->property("text").toString(), "caption");
    }

    void theWindowIsTitledExtracts()
    {
        QCOMPARE(mWindow->objectName(), u"frmExtract"_s);
        QCOMPARE(mWindow->windowTitle(), u"Tessaly - Extracts"_s);
        QCOMPARE(control<QMenu>("mnuFile")->title(), u"&File"_s);
        QVERIFY(control<QStatusBar>("sbStatusBar"));
    }

    void itOpensWithCommaWithoutIndicatorsAndEmpty()
    {
        QVERIFY(control<QRadioButton>("optDelimeter_0")->isChecked());
        QVERIFY(!control<QRadioButton>("optDelimeter_1")->isChecked());
        QVERIFY(!control<QRadioButton>("optUseIndicators_0")->isChecked());
        QVERIFY(control<QRadioButton>("optUseIndicators_1")->isChecked());
        QVERIFY(!control<QCheckBox>("chkHeaderRow")->isChecked());
        QCOMPARE(control<QLineEdit>("txtParentIndicator")->text(), u"Dynamic"_s);
        QCOMPARE(control<QLineEdit>("txtBaseIndicator")->text(), u"Store"_s);
        QCOMPARE(shown(), QString());
    }

    void openingAsksHfmForTheDimensionsNameAlone()
    {
        QCOMPARE(mFake->hfm.calls().made(), QStringList{u"GetDimensionName"_s});
    }

    void openingClearsBothExtractTexts()
    {
        delete mWindow;
        mGlobal->gExtractText = u"old"_s;
        mGlobal->gExtractTextWithHeader = u"old"_s;
        open();
        QCOMPARE(mGlobal->gExtractText, QString());
        QCOMPARE(mGlobal->gExtractTextWithHeader, QString());
    }

    void openingWithoutADimensionIsObjectVariableNotSet()
    {
        delete mWindow;
        mGlobal->gDimension.reset();
        try {
            frmExtract window(mFake->services, *mGlobal);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 91);
        }
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void openingFailsAsTheDimensionDoesAndShowsNothing()
    {
        delete mWindow;
        mFake->hfm.calls().fail("GetDimensionName"_L1, RuntimeError(1234));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, frmExtract(mFake->services, *mGlobal));
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void everyControlHasAnAccessibleName()
    {
        for (QWidget *widget : mWindow->findChildren<QWidget *>()) {
            const bool takesFocus = widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
            if (!takesFocus || widget->objectName().startsWith(u"qt_"))
                continue;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY(accessible);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(),
                     qPrintable(widget->objectName()));
        }
    }

    void theTabKeyGoesThroughTheControlsInTheirOrder()
    {
        control<QWidget>("optUseIndicators_1")->setFocus();
        QStringList names;
        for (int i = 0; i < 8; ++i) {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names, (QStringList{u"optUseIndicators_1"_s, u"txtParentIndicator"_s,
                                     u"txtBaseIndicator"_s, u"optDelimeter_0"_s, u"cmdExtract"_s,
                                     u"txtParentChild"_s, u"chkHeaderRow"_s, u"cmdSaveExtract"_s}));
    }

    // Run Extract.

    void runExtractShowsTheRowsWithoutIndicators()
    {
        click("cmdExtract");
        QCOMPARE(shown(), plainRows);
        QCOMPARE(mGlobal->gExtractText, plainRows);
        QCOMPARE(mGlobal->gExtractTextWithHeader, fourNames + u"\r\n"_s + plainRows);
    }

    void runExtractHasItsKey()
    {
        altKey(Qt::Key_E);
        QTRY_COMPARE(shown(), plainRows);
    }

    void runExtractUsesTheIndicatorsAsTypedWhereTheyAreUsed()
    {
        click("optUseIndicators_0");
        auto *base = control<QLineEdit>("txtBaseIndicator");
        base->selectAll();
        QTest::keyClicks(base, u"Leaf "_s);
        click("cmdExtract");
        QCOMPARE(shown(), QString(markedRows).replace(u"Store"_s, u"Leaf "_s));
    }

    void choosingAnIndicatorOptionBuildsNothing()
    {
        mFake->hfm.calls().clear();
        click("optUseIndicators_0");
        click("optUseIndicators_1");
        QCOMPARE(mFake->hfm.calls().made(), QStringList());
        QCOMPARE(shown(), QString());
    }

    void runExtractHonoursTheIndicatorOptionEvenWhileTabIsSelected()
    {
        click("optDelimeter_1");
        QCOMPARE(shown(), markedRows);
        click("cmdExtract");
        QCOMPARE(shown(), plainRows);
        QVERIFY(control<QRadioButton>("optDelimeter_1")->isChecked());
    }

    void doExtractRunsWithTheCommaSettings()
    {
        click("optDelimeter_1");
        mWindow->DoExtract();
        QCOMPARE(shown(), plainRows);
    }

    void descriptionsAreThoseOfTheChosenLanguage()
    {
        mGlobal->gLanguageIndex = 1;
        click("cmdExtract");
        QCOMPARE(
            shown(),
            QString(plainRows).replace(u"Alpha"_s, u"Erste"_s).replace(u"Beta"_s, u"Zweite"_s));
    }

    void theBoxIsEmptyUnderTheHourglassWhilePendingEventsRun()
    {
        click("cmdExtract");
        mFake->hfm.calls().clear();
        bool ran = false;
        QTimer::singleShot(0, mWindow, [&] {
            ran = true;
            QCOMPARE(shown(), QString());
            QCOMPARE(mWindow->cursor().shape(), Qt::WaitCursor);
            QCOMPARE(mFake->hfm.calls().made(), QStringList());
        });
        click("cmdExtract");
        QVERIFY(ran);
        QCOMPARE(shown(), plainRows);
        QCOMPARE(mWindow->cursor().shape(), Qt::ArrowCursor);
    }

    void aRunCannotBeStartedNorTheWindowClosedWithinARun()
    {
        bool ran = false;
        QTimer::singleShot(0, mWindow, [&] {
            ran = true;
            mFake->hfm.calls().clear();
            control<QPushButton>("cmdExtract")->click();
            QCOMPARE(mFake->hfm.calls().made(), QStringList());
            QVERIFY(!mWindow->close());
        });
        click("cmdExtract");
        QVERIFY(ran);
        QVERIFY(mWindow->isVisible());
        QCOMPARE(shown(), plainRows);
        click("cmdExtract");
        QCOMPARE(shown(), plainRows);
    }

    void anErrorOfHfmEndsTheProgramWithThePointerBack()
    {
        mFake->hfm.calls().fail("GetMemberLabel"_L1, RuntimeError(1234, u"HFM"_s, u"Lost."_s));
        click("cmdExtract");
        QCOMPARE(mFake->prompts.asked.size(), 1);
        QCOMPARE(mFake->prompts.asked[0].text, u"Run-time error '1234':\r\n\r\nLost."_s);
        QCOMPARE(mFake->program.endCodes, QList<int>{1});
        QCOMPARE(mWindow->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(shown(), QString());
    }

    void aDimensionThatIsGoneEndsTheProgram()
    {
        mGlobal->gDimension.reset();
        click("cmdExtract");
        QCOMPARE(mFake->prompts.asked.value(0).text,
                 u"Run-time error '91':\r\n\r\nObject variable or With block variable not set"_s);
        QCOMPARE(mFake->program.endCodes, QList<int>{1});
    }

    void moreThan32767ChildrenEndTheProgramWithOverflow()
    {
        for (int i = 0; i < 32768; ++i)
            account().members().add(0, u"C%1"_s.arg(i));
        click("cmdExtract");
        QCOMPARE(mFake->prompts.asked.value(0).text, u"Run-time error '6':\r\n\r\nOverflow"_s);
        QCOMPARE(mFake->program.endCodes, QList<int>{1});
    }

    void theCurrentDimensionIsExtractedWhateverTheCaptionSays()
    {
        mFake->hfm.application().entity().setMembers(u"E|Group"_s);
        mGlobal->gDimension = mFake->hfm.application().dimensions[size_t(FakeKind::Entity)];
        click("cmdExtract");
        QCOMPARE(shown(), u"\"\",\"\",\"E\",\"Group\"\r\n"_s);
        QCOMPARE(control<QLabel>("lblDimension")->text(), u"Account Dimension"_s);
    }

    // The delimiter options.

    void choosingTabProducesCommaSeparatedLinesWithDynamicAndStore()
    {
        click("optUseIndicators_0");
        control<QLineEdit>("txtParentIndicator")->setText(u"Up"_s);
        control<QLineEdit>("txtBaseIndicator")->setText(u"Down"_s);
        click("optDelimeter_1");
        QCOMPARE(shown(), markedRows);
        QCOMPARE(mGlobal->gExtractTextWithHeader, fourNames + u",INDICATOR\r\n"_s + markedRows);
    }

    void choosingCommaBuildsWithTheIndicatorOption()
    {
        click("optDelimeter_1");
        click("optDelimeter_0");
        QCOMPARE(shown(), plainRows);
    }

    void theSameDelimiterChosenAgainBuildsAgain()
    {
        click("optDelimeter_0");
        QCOMPARE(shown(), plainRows);
    }

    void anOptionThatBuildsShowsTheHourglassMeanwhile_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("comma") << QByteArray("optDelimeter_0");
        QTest::newRow("tab") << QByteArray("optDelimeter_1");
        QTest::newRow("header row") << QByteArray("chkHeaderRow");
    }

    void anOptionThatBuildsShowsTheHourglassMeanwhile()
    {
        QFETCH(QByteArray, name);
        const PointerSpy pointers(mWindow);
        click(name);
        QVERIFY(!mGlobal->gExtractText.isEmpty());
        QCOMPARE(pointers.shapes, (QList<Qt::CursorShape>{Qt::WaitCursor, Qt::ArrowCursor}));
    }

    void theDelimitersHaveTheirKeys()
    {
        altKey(Qt::Key_T);
        QTRY_COMPARE(shown(), markedRows);
        altKey(Qt::Key_O);
        QTRY_COMPARE(shown(), plainRows);
    }

    void anUnknownTagIsAnErrorAndNothingIsBuilt()
    {
        control<QRadioButton>("optDelimeter_1")->setProperty("Tag", u"PIPE"_s);
        click("cmdExtract");
        mFake->hfm.calls().clear();
        click("optDelimeter_1");
        QCOMPARE(mFake->prompts.asked.size(), 1);
        QCOMPARE(mFake->prompts.asked[0].title, u"Delimeter Option Error"_s);
        QCOMPARE(mFake->hfm.calls().made(), QStringList());
        QCOMPARE(shown(), plainRows);
    }

    void theIndicatorsOfTabAreNotThoseOfTheBoxes()
    {
        click("optDelimeter_1");
        QCOMPARE(control<QLineEdit>("txtParentIndicator")->text(), u"Dynamic"_s);
        QVERIFY(control<QRadioButton>("optUseIndicators_1")->isChecked());
    }

    // The header row.

    void theHeaderRowIsShownAndHidden()
    {
        click("cmdExtract");
        click("chkHeaderRow");
        QCOMPARE(shown(), fourNames + u"\r\n"_s + plainRows);
        click("chkHeaderRow");
        QCOMPARE(shown(), plainRows);
    }

    void theHeaderRowHasItsKey()
    {
        click("cmdExtract");
        altKey(Qt::Key_H);
        QTRY_COMPARE(shown(), fourNames + u"\r\n"_s + plainRows);
    }

    void aBuiltExtractIsShownWithoutHeaderWhateverTheBoxSays()
    {
        click("cmdExtract");
        click("chkHeaderRow");
        click("cmdExtract");
        QVERIFY(control<QCheckBox>("chkHeaderRow")->isChecked());
        QCOMPARE(shown(), plainRows);
    }

    void theHeaderRowOfAnExtractThatWasNotRunBuildsItWithoutIndicatorsAndShowsNothing()
    {
        click("optUseIndicators_0");
        click("chkHeaderRow");
        QVERIFY(control<QCheckBox>("chkHeaderRow")->isChecked());
        QCOMPARE(mGlobal->gExtractText, plainRows);
        QCOMPARE(shown(), QString());
        click("chkHeaderRow");
        QCOMPARE(shown(), plainRows);
    }

    void aDimensionWithoutMembersShowsOnlyTheHeaderLineWithTheHeaderBoxChecked()
    {
        account().setMembers(u""_s);
        click("cmdExtract");
        QCOMPARE(shown(), QString());
        click("chkHeaderRow");
        QCOMPARE(shown(), fourNames + u"\r\n"_s);
        click("cmdExtract");
        QCOMPARE(shown(), fourNames + u"\r\n"_s);
        click("chkHeaderRow");
        QCOMPARE(shown(), QString());
    }

    // Saving.

    void saveHandsOverTheTextAsShownAndOpensTheSaveDialog()
    {
        click("cmdExtract");
        click("cmdSaveExtract");
        QCOMPARE(mGlobal->gSaveFilePattern, u"*.txt"_s);
        QCOMPARE(mGlobal->gSaveMode, u"METADATAEXTRACT"_s);
        QCOMPARE(mGlobal->gPendingText, plainRows);
        const QPointer<frmDrvDirFil> dialog = mWindow->findChild<frmDrvDirFil *>();
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
        QVERIFY(dialog->isModal());
        QCOMPARE(dialog->parentWidget(), mWindow.data());
        dialog->close();
        QTRY_VERIFY(!dialog);
    }

    void saveHandsOverTheHeaderWhereItIsShown()
    {
        click("cmdExtract");
        click("chkHeaderRow");
        click("cmdSaveExtract");
        QCOMPARE(mGlobal->gPendingText, fourNames + u"\r\n"_s + plainRows);
    }

    void saveOfAnEmptyBoxHandsOverNothing()
    {
        mGlobal->gPendingText = u"old"_s;
        altKey(Qt::Key_S);
        QTRY_VERIFY(mWindow->findChild<frmDrvDirFil *>());
        QCOMPARE(mGlobal->gPendingText, QString());
    }

    void anExtractIsSavedByteForByte()
    {
        account().setMembers(u"Ä|\"Verkäufe\"\n  中|x"_s);
        click("cmdExtract");
        click("cmdSaveExtract");
        auto *dialog = mWindow->findChild<frmDrvDirFil *>();
        QTRY_VERIFY(dialog->isActiveWindow());
        QTest::keyClicks(dialog->findChild<QLineEdit *>(u"txtFileName"_s), u"out.txt"_s);
        QTest::keyClick(dialog, Qt::Key_S, Qt::AltModifier);
        QFile file(mFolder.filePath(u"out.txt"_s));
        QTRY_VERIFY(file.exists());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("\"\",\"\",\"\xC4\",\"\"Verk\xE4ufe\"\"\r\n"
                                            "\"\xC4\",\"\"Verk\xE4ufe\"\",\"?\",\"x\"\r\n"));
        QCOMPARE(mFake->prompts.asked.value(0).text, u"Successfully saved member list file to '"_s +
                                                         mFolder.filePath(u"out.txt"_s) + u"'."_s);
    }

    // Closing.

    void closeUnloadsTheWindowAndClearsBothExtractTexts()
    {
        click("cmdExtract");
        control<QAction>("mnuClose")->trigger();
        QCOMPARE(mGlobal->gExtractText, QString());
        QCOMPARE(mGlobal->gExtractTextWithHeader, QString());
        QTRY_VERIFY(!mWindow);
    }

    void exitEndsTheProgram()
    {
        control<QAction>("mnuExit")->trigger();
        QCOMPARE(mFake->program.endCodes, QList<int>{0});
    }

    void theMenuHasItsKeys()
    {
        altKey(Qt::Key_F);
        auto *menu = control<QMenu>("mnuFile");
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, Qt::Key_C);
        QTRY_VERIFY(!mWindow);
    }
};

QTEST_MAIN(tst_frmExtract)
#include "tst_frmExtract.moc"
