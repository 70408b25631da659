#include "MainWindow.h"

#include <QMenu>
#include <QMenuBar>

/// What stands in the main window.
class tst_frmMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { mMain = std::make_unique<MainWindow>(); }
    void cleanup() { mMain.reset(); }

    void theCaptionsAndToolTipsAreThese_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("toolTip");
        const auto row = [](const char *name, const char *caption, const char *toolTip) {
            QTest::newRow(name) << latin1(caption) << latin1(toolTip);
        };
        row("cmdLogon", "(Re) &Logon", "Logon and Connect to Hyperion Financial Management");
        row("cmdExit", "E&xit", "Exit the Application");
        row("cmdApplicationInfo", "A&pplication Info",
            "Module that provides general or dimension specific information");
        row("cmdScripting", "Generate &Scripts", "");
        row("cmdExtractMetadata", "&Extract Metadata", "Flat File Metadata extract functionality");
        row("cmdMemberListBuilder", "&Member List Builder",
            "Utilitiy module that allows you to create static member lists");
        row("cmdMetadataViewer", "Metadata &Viewer",
            "Hierarchical member list viewer with Export to Excel");
    }

    void theCaptionsAndToolTipsAreThese()
    {
        mMain->load();
        QPushButton *const found = mMain->button(QTest::currentDataTag());
        QVERIFY(found);
        QTEST(found->text(), "caption");
        QTEST(found->toolTip(), "toolTip");
    }

    void theMenusAreThese()
    {
        mMain->load();
        QStringList entries;
        for (const QAction *menu : mMain->window->menuBar()->actions()) {
            entries.append(menu->menu()->objectName() + u' ' + menu->text());
            for (const QAction *entry : menu->menu()->actions())
                entries.append(entry->objectName() + u' ' + entry->text());
        }
        QCOMPARE(entries, (QStringList{latin1("mnuFile &File"), latin1("mnuLogon (Re) &Logon"),
                                       latin1("mnuExit E&xit Tessaly"), latin1("mnuHelp &Help"),
                                       latin1("mnuHFMHelp &Tessaly Help"),
                                       latin1("mnuHelpAbout &About Tessaly...")}));
    }

    void theListsAndLabelsAreThese()
    {
        mMain->load();
        QCOMPARE(mMain->window->objectName(), latin1("frmMain"));
        QCOMPARE(mMain->window->windowTitle(), latin1("Tessaly"));
        QCOMPARE(mMain->control<QLabel>("lblLanguages")->text(), latin1("Language:"));
        QCOMPARE(mMain->control<QLabel>("lblSetDimension")->text(), latin1("Set Dimension:"));
        QCOMPARE(mMain->control<QLabel>("lblHelpText")->text(),
                 latin1("Put help text in here explaining how these utilities are somtimes used, "
                        "etc..."));
        const auto *frame = mMain->control<QGroupBox>("frmDimensionActionItems");
        QCOMPARE(frame->title(), latin1(" Dimensional Modules "));
        for (const char *inFrame : {"lblSetDimension", "cboSetDimension", "cmdExtractMetadata",
                                    "cmdMemberListBuilder", "cmdMetadataViewer"})
            QVERIFY2(frame->findChild<QWidget *>(latin1(inFrame)), inFrame);

        QVERIFY(!mMain->languageList()->isEditable());
        QVERIFY(mMain->dimensionList()->isEditable());
        QCOMPARE(mMain->dimensionList()->currentText(), QString());
        QStringList names;
        for (int i = 0; i < mMain->dimensionList()->count(); ++i)
            names.append(mMain->dimensionList()->itemText(i));
        QCOMPARE(names.join(u' '), latin1("Account Entity Scenario Year Period Custom1 Custom2 "
                                          "Custom3 Custom4 View Value ICP"));
    }

    void everyControlHasAnAccessibleNameAndALabelItsBuddy()
    {
        mMain->load();
        QCOMPARE(mMain->control<QLabel>("lblLanguages")->buddy(), mMain->languageList());
        QCOMPARE(mMain->control<QLabel>("lblSetDimension")->buddy(), mMain->dimensionList());
        QCOMPARE(mMain->languageList()->accessibleName(), latin1("Language"));
        QCOMPARE(mMain->dimensionList()->accessibleName(), latin1("Set Dimension"));
        QCOMPARE(mMain->button("cmdLogon")->accessibleName(), latin1("(Re) Logon"));
        for (const QPushButton *found : mMain->window->findChildren<QPushButton *>())
            QVERIFY2(!found->accessibleName().isEmpty(), qPrintable(found->objectName()));
    }

    void theKeyboardWalksThroughTheControlsInOrder()
    {
        QVERIFY(mMain->show());
        mMain->chooseDimension("Account");
        QStringList order{QApplication::focusWidget()->objectName()};
        for (int i = 0; i < 8; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            order.append(QApplication::focusWidget()->objectName());
        }
        QCOMPARE(order, (QStringList{latin1("cboSetDimension"), latin1("cmdExtractMetadata"),
                                     latin1("cmdMemberListBuilder"), latin1("cmdMetadataViewer"),
                                     latin1("cboLanguages"), latin1("cmdLogon"),
                                     latin1("cmdApplicationInfo"), latin1("cmdScripting"),
                                     latin1("cmdExit")}));
    }

private:
    std::unique_ptr<MainWindow> mMain;
};

QTEST_MAIN(tst_frmMain)
#include "tst_frmMain.moc"
